Do
  n = n + 1
Loop While n > 100
WScript.Echo n
' expect: 1
Do
  n = n + 1
Loop While n < 5
WScript.Echo n
' expect: 5
