WScript.Echo TypeName(Now), TypeName(Date), TypeName(Time), TypeName(Timer)
' expect: Date Date Date Single
