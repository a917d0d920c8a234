' expect: False
' expect: False
' expect: True
Set d = CreateObject("Scripting.Dictionary")
d.Add Empty, 1
WScript.Echo d.Exists("")
WScript.Echo d.Exists(0)
WScript.Echo d.Exists(Empty)
