For i = 1 To 5
  Select Case i
    Case 3
      Exit For
  End Select
Next
WScript.Echo i
' expect: 3
