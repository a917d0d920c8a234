' expect: 450
Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.Add "a"
WScript.Echo Err.Number
