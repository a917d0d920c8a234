On Error Resume Next
Select Case 1 / 0
  Case 0
    WScript.Echo "zero"
  Case Else
    WScript.Echo "else"
End Select
WScript.Echo Err.Number
' expect: 11
