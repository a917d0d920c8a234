Execute "For i = 1 To 3" & vbCrLf & "  n = n + i" & vbCrLf & "Next"
WScript.Echo n, i
' expect: 6 4
