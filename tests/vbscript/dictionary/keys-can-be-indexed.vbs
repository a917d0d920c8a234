' expect: x
' expect: 9
Set d = CreateObject("Scripting.Dictionary")
d.Add "x", 9
WScript.Echo d.Keys()(0)
WScript.Echo d.Items()(0)
