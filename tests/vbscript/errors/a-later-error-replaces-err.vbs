On Error Resume Next
x = 1 / 0
x = CInt("abc")
WScript.Echo Err.Number, Err.Description
' expect: 13 Type mismatch
