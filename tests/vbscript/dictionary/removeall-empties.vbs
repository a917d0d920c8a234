' expect: 0
' expect: False
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d.RemoveAll
WScript.Echo d.Count
WScript.Echo d.Exists("a")
