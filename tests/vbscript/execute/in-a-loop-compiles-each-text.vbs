For i = 1 To 3
  Execute "total = total + " & i & " * 10"
Next
WScript.Echo total
' expect: 60
