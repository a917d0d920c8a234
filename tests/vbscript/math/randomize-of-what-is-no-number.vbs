On Error Resume Next
Randomize "x"
WScript.Echo Err.Number
' expect: 13
Err.Clear
Randomize Null
WScript.Echo Err.Number
' expect: 94
