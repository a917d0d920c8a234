If a = 1
  b = 1
End If
' expect error: 1017 at 1:8
' expect text: Expected 'Then'
