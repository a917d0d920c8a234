' expect: tf
' expect: 2
Set d = CreateObject("Scripting.Dictionary")
d.Add True, "t"
d.Add False, "f"
WScript.Echo d(True) & d(False)
WScript.Echo d.Count
