On Error Resume Next
Do
  n = n + 1
Loop While 1 / 0
WScript.Echo n, Err.Number
' expect: 1 11
