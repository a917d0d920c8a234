' expect: -1
' expect: -1
Set d = CreateObject("Scripting.Dictionary")
WScript.Echo UBound(d.Keys)
WScript.Echo UBound(d.Items)
