' expect: 1
' expect: 2
' expect: Key
Set d = CreateObject("Scripting.Dictionary")
d.CompareMode = vbTextCompare
d("Key") = 1
d("KEY") = 2
WScript.Echo d.Count
WScript.Echo d("key")
WScript.Echo Join(d.Keys)
