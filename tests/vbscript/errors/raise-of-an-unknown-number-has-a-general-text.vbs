On Error Resume Next
Err.Raise 12345
WScript.Echo Err.Number, Err.Description
' expect: 12345 Unknown runtime error
