' expect: 2
' expect: nt
Set d = CreateObject("Scripting.Dictionary")
d.Add 1, "n"
d.Add "1", "t"
WScript.Echo d.Count
WScript.Echo d(1) & d("1")
