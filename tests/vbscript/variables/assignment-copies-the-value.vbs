a = 1
b = a
a = 2
WScript.Echo a, b
' expect: 2 1
