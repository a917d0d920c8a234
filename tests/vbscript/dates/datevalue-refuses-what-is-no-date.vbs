On Error Resume Next
x = DateValue("abc")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateValue("11/21/2026 89:98")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateValue("2/30/2026")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateValue(46347)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = DateValue(Null)
WScript.Echo Err.Number
' expect: 94
Err.Clear
