For i = 1 To 6 Step 2
  s = s & i
Next
WScript.Echo s
' expect: 135
WScript.Echo i
' expect: 7
