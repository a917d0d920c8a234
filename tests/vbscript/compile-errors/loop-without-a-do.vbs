x = 1
Loop
' expect error: 1038 at 2:0
' expect text: 'loop' without 'do'
