On Error Resume Next
MsgBox "a", "x"
WScript.Echo Err.Number
' expect: 13
Err.Clear
MsgBox "a", 0, "t", "help"
WScript.Echo Err.Number
' expect: 5
Err.Clear
x = InputBox(Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
x = InputBox("a", "t", "d", "x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
