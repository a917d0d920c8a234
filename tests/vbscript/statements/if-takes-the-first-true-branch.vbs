n = 15
If n < 10 Then
  WScript.Echo "small"
ElseIf n < 20 Then
  WScript.Echo "middle"
ElseIf n < 30 Then
  WScript.Echo "large"
Else
  WScript.Echo "huge"
End If
' expect: middle
