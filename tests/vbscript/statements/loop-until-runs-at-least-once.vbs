Do
  n = n + 1
Loop Until True
WScript.Echo n
' expect: 1
Do
  n = n + 1
Loop Until n >= 5
WScript.Echo n
' expect: 5
