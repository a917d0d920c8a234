' expect: True
' expect: True
WScript.Echo IsNull(InStrRev(Null, "a"))
WScript.Echo IsNull(InStrRev("a", Null))
