' expect: 2
' expect: 2
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("a") = 2
d.Item("b") = 3
WScript.Echo d("a")
WScript.Echo d.Count
