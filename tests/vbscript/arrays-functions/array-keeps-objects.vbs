' expect: 7
' expect: True
Class C
  Public n
End Class
Set o = New C
o.n = 7
a = Array(o)
WScript.Echo a(0).n
WScript.Echo a(0) Is o
