If False Then
  x = 1
ElseIf True Then x = 2
  x = x + 1
Else x = 4
End If
WScript.Echo x
' expect: 3
