' expect: b a c
' expect: 1 2 3
Set d = CreateObject("Scripting.Dictionary")
d.Add "b", 1
d.Add "a", 2
d.Add "c", 3
WScript.Echo Join(d.Keys)
WScript.Echo Join(d.Items)
