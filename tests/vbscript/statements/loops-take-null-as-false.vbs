While Null
  WScript.Echo "never"
Wend
Do While Null
  WScript.Echo "never"
Loop
Do
  n = n + 1
Loop While Null
WScript.Echo n
' expect: 1
Do Until Null
  n = n + 1
  If n = 4 Then Exit Do
Loop
WScript.Echo n
' expect: 4
