Class C
End Sub
' expect error: 1047 at 2:4
' expect text: Expected 'Class'
