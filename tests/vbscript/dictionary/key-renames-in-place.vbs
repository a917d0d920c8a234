' expect: a x c
' expect: 2
' expect: False
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("b") = 2
d("c") = 3
d.Key("b") = "x"
WScript.Echo Join(d.Keys)
WScript.Echo d("x")
WScript.Echo d.Exists("b")
