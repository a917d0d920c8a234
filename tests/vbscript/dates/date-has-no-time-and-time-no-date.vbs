WScript.Echo Hour(Date), Minute(Date), Second(Date), Year(Time)
' expect: 0 0 0 1899
