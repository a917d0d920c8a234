' expect: 1
' expect: two
' expect: 2
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", "two"
WScript.Echo d.Item("a")
WScript.Echo d("b")
WScript.Echo d.Count
