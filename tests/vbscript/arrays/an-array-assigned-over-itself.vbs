a = Array(1, 2)
a = a
WScript.Echo Join(a)
' expect: 1 2
a = Array(a(1), a(0))
WScript.Echo Join(a)
' expect: 2 1
