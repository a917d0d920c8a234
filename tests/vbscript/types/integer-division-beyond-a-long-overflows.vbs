On Error Resume Next
x = 3000000000 \ 2
WScript.Echo Err.Number
' expect: 6
