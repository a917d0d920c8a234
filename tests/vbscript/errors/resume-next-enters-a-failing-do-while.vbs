On Error Resume Next
Do While 1 / 0
  WScript.Echo "body", Err.Number
  Exit Do
Loop
' expect: body 11
