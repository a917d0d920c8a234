Sub S(n)
  Execute "n = n + 1"
End Sub
x = 5
S x
WScript.Echo x
' expect: 6
