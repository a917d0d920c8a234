Sub S()
End Function
' expect error: 1016 at 2:4
' expect text: Expected 'Sub'
