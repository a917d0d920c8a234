Sub S(value)
  Dim a(1)
  WScript.Echo TypeName(a(0))
  a(0) = value
End Sub
S 1
S 2
' expect: Empty
' expect: Empty
