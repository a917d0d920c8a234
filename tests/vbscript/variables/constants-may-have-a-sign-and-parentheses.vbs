Const a = -5, b = (3), c = +2
WScript.Echo a, b, c
' expect: -5 3 2
