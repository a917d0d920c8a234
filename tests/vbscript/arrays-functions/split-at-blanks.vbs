' expect: 2
' expect: c
a = Split("a b c")
WScript.Echo UBound(a)
WScript.Echo a(2)
