: a = 1 :: b = 2 : : c = 3 :
WScript.Echo a, b, c
' expect: 1 2 3
