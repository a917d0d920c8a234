x = 0
  If 1 / x = 1 Then
    y = 1
  End If
' expect error: 11 at 2:2
