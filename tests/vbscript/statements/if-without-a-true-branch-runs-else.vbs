If False Then
  WScript.Echo "if"
ElseIf False Then
  WScript.Echo "elseif"
Else
  WScript.Echo "else"
End If
' expect: else
