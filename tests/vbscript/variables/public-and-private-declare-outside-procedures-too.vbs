Option Explicit
Public a
Private b(1)
a = 1
b(1) = 2
WScript.Echo a, b(1)
' expect: 1 2
