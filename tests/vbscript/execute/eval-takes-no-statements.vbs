On Error Resume Next
x = Eval("If True Then y = 1")
WScript.Echo Err.Number > 1000, Err.Source, TypeName(y)
' expect: True Microsoft VBScript compilation error Empty
