n = 3
Do Until n = 3
  WScript.Echo "never"
Loop
Do Until n = 0
  n = n - 1
  s = s & n
Loop
WScript.Echo s
' expect: 210
