For Each x In Array(3, 5, 8, 13)
  If x > 4 Then Exit For
Next
WScript.Echo x
' expect: 5
