a = Array(1, 2, 3)
b = a
b(0) = 9
a(2) = 8
WScript.Echo Join(a), "-", Join(b)
' expect: 1 2 8 - 9 2 3
