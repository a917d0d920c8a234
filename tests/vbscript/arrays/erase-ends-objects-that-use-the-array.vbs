Dim a(3)

Class User
  Private Sub Class_Terminate()
    WScript.Echo TypeName(a(0)) & TypeName(a(1))
    a(1) = "kept"
    Erase a
  End Sub
End Class

Set a(0) = New User
Set a(1) = New User
Erase a
WScript.Echo TypeName(a(1))
' expect: EmptyEmpty
' expect: EmptyEmpty
' expect: Empty
