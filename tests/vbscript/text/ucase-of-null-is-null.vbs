' expect: True
' expect: True
WScript.Echo IsNull(UCase(Null))
WScript.Echo IsNull(LCase(Null))
