' expect error: 32811 at 4
' expect text: Element not found
Set d = CreateObject("Scripting.Dictionary")
d.Remove "x"
