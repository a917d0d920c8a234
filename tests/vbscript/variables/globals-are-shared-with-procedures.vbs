count = 1
Sub S()
  count = count + 1
End Sub
S
S
WScript.Echo count
' expect: 3
