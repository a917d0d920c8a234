a = Array("x", 2, True)
WScript.Echo UBound(a), a(0), a(1), a(2)
' expect: 2 x 2 True
e = Array()
WScript.Echo UBound(e), IsArray(e)
' expect: -1 True
