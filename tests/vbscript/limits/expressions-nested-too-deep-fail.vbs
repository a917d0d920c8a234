On Error Resume Next
x = Eval(String(100000, "(") & "1" & String(100000, ")"))
WScript.Echo Err.Number
' expect: 1001
