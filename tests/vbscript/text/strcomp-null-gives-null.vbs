' expect: True
' expect: True
WScript.Echo IsNull(StrComp(Null, "a"))
WScript.Echo IsNull(StrComp("a", Null))
