Class Box
  Public A
  Dim B
  Private C
  Public Function Types()
    Types = TypeName(A) & TypeName(B) & TypeName(C)
  End Function
End Class

Set o = New Box
WScript.Echo o.Types, TypeName(o.A)
' expect: EmptyEmptyEmpty Empty
