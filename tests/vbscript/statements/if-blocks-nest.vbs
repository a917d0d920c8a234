For i = 1 To 4
  If i > 1 Then
    If i > 2 Then
      If i > 3 Then
        WScript.Echo i, "more than three"
      Else
        WScript.Echo i, "three"
      End If
    Else
      WScript.Echo i, "two"
    End If
  End If
Next
' expect: 2 two
' expect: 3 three
' expect: 4 more than three
