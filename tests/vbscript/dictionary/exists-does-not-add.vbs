' expect: False
' expect: 0
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo d.Exists("a")
WScript.Echo d.Count
