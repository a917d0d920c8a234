Set d = CreateObject("Scripting.Dictionary")
d.Add "one", 1
d.Add 2, "two"
d.Add "three", 3
d.Remove 2
d.Add "four", 4
For Each key In d
  WScript.Echo key
Next
' expect: one
' expect: three
' expect: four
