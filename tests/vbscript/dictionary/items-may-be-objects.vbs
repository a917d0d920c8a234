' expect: 5
' expect: C
Set d = CreateObject("Scripting.Dictionary")
Class C
  Public n
End Class
Set d("o") = New C
d("o").n = 5
WScript.Echo d("o").n
WScript.Echo TypeName(d("o"))
