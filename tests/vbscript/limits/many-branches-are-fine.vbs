code = "Select Case n" & vbLf
For i = 1 To 1000
  code = code & "Case " & i & vbLf & "r = " & i * 2 & vbLf
Next
code = code & "End Select"
n = 777
Execute code
WScript.Echo r
' expect: 1554
