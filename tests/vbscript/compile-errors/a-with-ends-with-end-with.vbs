With o
End If
' expect error: 1029 at 2:4
' expect text: Expected 'With'
