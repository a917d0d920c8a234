x = 0
While x < 3 x = x + 1
Wend
WScript.Echo x
' expect: 3
