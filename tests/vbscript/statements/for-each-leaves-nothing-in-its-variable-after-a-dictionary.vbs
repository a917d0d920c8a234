Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
For Each key In d
Next
WScript.Echo TypeName(key)
' expect: Empty
