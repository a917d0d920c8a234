' expect: 91
On Error Resume Next
Set e = Nothing : x = UCase(e)
WScript.Echo Err.Number
