On Error Resume Next
Err.Raise 9
WScript.Echo Err.Number, Err.Description, "-", Err.Source
' expect: 9 Subscript out of range - Microsoft VBScript runtime error
Err.Raise 70
WScript.Echo Err.Number, Err.Description
' expect: 70 Permission denied
