Class Box
  Public N
End Class
Set b = New Box
b.N = 4
Set c = Eval("b")
WScript.Echo c Is b, Eval("b.N + 1")
' expect: True 5
Set d = Eval("New Box")
WScript.Echo TypeName(d)
' expect: Box
