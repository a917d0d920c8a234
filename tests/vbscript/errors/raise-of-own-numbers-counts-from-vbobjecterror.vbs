On Error Resume Next
Err.Raise vbObjectError + 513, "Module", "Own error"
WScript.Echo Err.Number, Err.Number = vbObjectError + 513, Err.Description
' expect: -2147220991 True Own error
