Class Counter
  Public N
End Class
Dim asked, it
Set it = New Counter
Function Find()
  asked = asked + 1
  Set Find = it
End Function

With Find()
  .N = .N + 1
  .N = .N + 1
End With
WScript.Echo it.N, asked
' expect: 2 1
