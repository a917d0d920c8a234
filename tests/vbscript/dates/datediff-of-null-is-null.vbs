WScript.Echo IsNull(DateDiff("d", Null, 1))
' expect: True
WScript.Echo IsNull(DateDiff("d", 1, Null))
' expect: True
