' expect: Dictionary
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo TypeName(d)
