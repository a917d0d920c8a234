On Error Resume Next
x = CInt("abc")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = CDbl("")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = CBool("maybe")
WScript.Echo Err.Number
' expect: 13
