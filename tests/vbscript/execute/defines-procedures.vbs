Execute "Function Twice(n)" & vbLf & "Twice = n * 2" & vbLf & "End Function"
WScript.Echo Twice(4), Eval("Twice(5)")
' expect: 8 10
