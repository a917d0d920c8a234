On Error Resume Next
x = FormatCurrency(Null)
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatCurrency("x")
WScript.Echo Err.Number
' expect: 13
Err.Clear
x = FormatCurrency(1, -2)
WScript.Echo Err.Number
' expect: 5
Err.Clear
