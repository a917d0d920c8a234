While True
  Exit Do
Wend
' expect error: 1039 at 2:7
' expect text: Invalid 'exit' statement
