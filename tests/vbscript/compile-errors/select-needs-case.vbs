Select x
End Select
' expect error: 1021 at 1:7
' expect text: Expected 'Case'
