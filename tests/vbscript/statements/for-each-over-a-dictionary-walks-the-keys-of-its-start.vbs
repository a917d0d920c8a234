Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "b", 2
For Each key In d.Keys
  d.Add key & key, 0
  n = n + 1
Next
WScript.Echo n, d.Count
' expect: 2 4
