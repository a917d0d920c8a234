x = 0
Select Case 1
  Case 2
  Case 1 / x
    y = 1
End Select
' expect error: 11 at 2:0
