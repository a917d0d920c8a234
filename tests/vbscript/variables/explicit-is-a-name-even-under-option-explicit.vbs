Option Explicit
Dim Explicit
Explicit = 1
WScript.Echo Explicit
' expect: 1
