' expect: False
' expect: 1
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("b") = 2
d.Remove "a"
WScript.Echo d.Exists("a")
WScript.Echo d.Count
