On Error Resume Next
Err.Raise 13, , "Not this kind"
WScript.Echo Err.Number, Err.Description
' expect: 13 Not this kind
