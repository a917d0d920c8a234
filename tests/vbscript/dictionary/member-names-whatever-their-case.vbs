' expect: True
' expect: 1
Set d = CreateObject("Scripting.Dictionary")
D.ADD "a", 1
WScript.Echo d.EXISTS("a")
WScript.Echo d.count
