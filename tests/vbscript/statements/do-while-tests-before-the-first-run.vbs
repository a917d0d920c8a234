n = 3
Do While n < 3
  WScript.Echo "never"
Loop
Do While n > 0
  n = n - 1
  s = s & n
Loop
WScript.Echo s
' expect: 210
