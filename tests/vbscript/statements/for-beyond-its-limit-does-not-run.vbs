For i = 5 To 1
  WScript.Echo "never"
Next
WScript.Echo i
' expect: 5
For i = 1 To 5 Step -1
  WScript.Echo "never"
Next
WScript.Echo i
' expect: 1
