Dim depth
Function F()
  depth = depth + 1
  If depth < 4 Then
    F = "x" & F()
  Else
    F = "end"
  End If
End Function
WScript.Echo F()
' expect: xxxend
