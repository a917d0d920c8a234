If a Then
ElseIf b
End If
' expect error: 1017 at 2:8
' expect text: Expected 'Then'
