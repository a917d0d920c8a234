' expect: b a
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("b") = 2
d.Remove "a"
d("a") = 3
WScript.Echo Join(d.Keys)
