On Error Resume Next
x = 1 / 0
WScript.Echo Err.Number
' expect: 11
Err.Clear
x = 1 \ 0
WScript.Echo Err.Number
' expect: 11
Err.Clear
x = 1 Mod 0
WScript.Echo Err.Number
' expect: 11
