' expect: 1
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d.RemoveAll
d.CompareMode = 1
WScript.Echo d.CompareMode
