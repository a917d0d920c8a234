WScript.Echo IsNull(Year(Null))
' expect: True
WScript.Echo IsNull(Month(Null))
' expect: True
WScript.Echo IsNull(Day(Null))
' expect: True
WScript.Echo IsNull(Hour(Null))
' expect: True
WScript.Echo IsNull(Minute(Null))
' expect: True
WScript.Echo IsNull(Second(Null))
' expect: True
WScript.Echo IsNull(Weekday(Null))
' expect: True
