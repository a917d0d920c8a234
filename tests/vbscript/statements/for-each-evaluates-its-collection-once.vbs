Dim asked
Function Numbers()
  asked = asked + 1
  Numbers = Array(1, 2, 3)
End Function

For Each x In Numbers()
  n = n + x
Next
WScript.Echo n, asked
' expect: 6 1
