On Error Resume Next
Execute "s = ""abc"
WScript.Echo Err.Number, Err.Description
' expect: 1033 Unterminated string constant
WScript.Echo Err.Source
' expect: Microsoft VBScript compilation error
