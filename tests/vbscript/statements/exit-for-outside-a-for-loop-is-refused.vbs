Do
  Exit For
Loop
' expect error: 1039
