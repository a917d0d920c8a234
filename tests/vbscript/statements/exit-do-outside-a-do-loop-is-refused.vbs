While True
  Exit Do
Wend
' expect error: 1039
' expect text: Invalid 'exit' statement
