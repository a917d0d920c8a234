Option Explicit
x = 5
WScript.Echo x
Dim x
' expect: 5
