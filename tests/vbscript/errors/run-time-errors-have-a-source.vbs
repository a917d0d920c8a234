On Error Resume Next
x = 1 / 0
WScript.Echo Err.Source
' expect: Microsoft VBScript runtime error
