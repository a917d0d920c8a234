While i < 2
  i = i + 1
  j = 0
  While j < 2
    j = j + 1
    s = s & i & j & " "
  Wend
Wend
WScript.Echo Trim(s)
' expect: 11 12 21 22
