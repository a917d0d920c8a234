' expect: False
' expect: 0
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
WScript.Echo d.Exists("A")
WScript.Echo d.CompareMode
