x = 2
Select Case x
  Case 1, 2 y = "few"
  Case Else y = "many"
End Select
WScript.Echo y
' expect: few
