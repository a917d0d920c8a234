Select Case 2
  Case 1, 2 x = 7
  Case Else x = 8
End Select
WScript.Echo x
' expect: 7
