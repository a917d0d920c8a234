Class Box
  Public N
End Class
Dim a(0)
Set a(0) = New Box
b = a
b(0).N = 4
WScript.Echo a(0).N
' expect: 4
