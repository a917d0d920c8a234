a = 1 ' a = 2
Rem a = 3
b = 4 : Rem b = 5
WScript.Echo a, b
' expect: 1 4
