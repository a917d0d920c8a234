On Error Resume Next
s = Space(2000000000)
WScript.Echo Err.Number
' expect: 14
