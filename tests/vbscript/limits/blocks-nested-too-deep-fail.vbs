On Error Resume Next
code = Replace(String(50000, "x"), "x", "If True Then" & vbLf)
code = code & Replace(String(50000, "x"), "x", "End If" & vbLf)
Execute code
WScript.Echo Err.Number
' expect: 1001
