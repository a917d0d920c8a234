Do
  If a Then
Loop
' expect error: 1038 at 3:0
' expect text: 'loop' without 'do'
