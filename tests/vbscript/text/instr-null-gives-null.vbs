' expect: True
' expect: True
WScript.Echo IsNull(InStr(Null, "a"))
WScript.Echo IsNull(InStr("a", Null))
