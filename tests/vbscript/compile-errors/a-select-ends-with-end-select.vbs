Select Case 1
  Case 1
End If
' expect error: 1022 at 3:4
' expect text: Expected 'Select'
