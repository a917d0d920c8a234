' expect error: 457 at 5
' expect text: This key is already associated with an element of this collection
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", 1
d.Add "a", 2
