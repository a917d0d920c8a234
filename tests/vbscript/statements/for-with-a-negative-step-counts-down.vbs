For i = 6 To 1 Step -2
  WScript.Echo i
Next
' expect: 6
' expect: 4
' expect: 2
WScript.Echo i
' expect: 0
