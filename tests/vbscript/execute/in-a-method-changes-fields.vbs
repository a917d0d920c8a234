Class Box
  Public N
  Public Sub Run(code)
    Execute code
  End Sub
End Class
Set b = New Box
b.Run "N = 8"
WScript.Echo b.N
' expect: 8
