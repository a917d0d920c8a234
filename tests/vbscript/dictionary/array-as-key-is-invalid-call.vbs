' expect: 5
' expect: 0
Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.Add Array(1), 1
WScript.Echo Err.Number
WScript.Echo d.Count
