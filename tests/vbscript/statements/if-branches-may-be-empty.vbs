If True Then
Else
  WScript.Echo "never"
End If
If False Then
ElseIf True Then
End If
WScript.Echo "end"
' expect: end
