While n < 3
  n = n + 1
Wend
WScript.Echo n
' expect: 3
While n < 3
  WScript.Echo "never"
Wend
