For i = 1 To 5
  Select Case i
    Case 1, 3, 5
      WScript.Echo i, "odd"
    Case 2, 4
      WScript.Echo i, "even"
  End Select
Next
' expect: 1 odd
' expect: 2 even
' expect: 3 odd
' expect: 4 even
' expect: 5 odd
