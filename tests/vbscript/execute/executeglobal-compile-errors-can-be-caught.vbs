On Error Resume Next
ExecuteGlobal "Next"
WScript.Echo Err.Number > 1000 And Err.Number < 1059
' expect: True
