Class Box
  Public N
End Class
Function Make(n)
  Set Make = New Box
  Make.N = n
End Function
Set b = Make(7)
WScript.Echo b.N, Make(8).N
' expect: 7 8
