' expect: 6
' expect: 0
' expect: True
WScript.Echo LenB("abc")
WScript.Echo LenB("")
WScript.Echo IsNull(LenB(Null))
