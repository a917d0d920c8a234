On Error Resume Next
x = CInt(Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = CStr(Null)
WScript.Echo Err.Number
' expect: 94
