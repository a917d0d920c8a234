' expect: 5
' expect: 5
Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.CompareMode = 3
WScript.Echo Err.Number
Err.Clear
d.CompareMode = -1
WScript.Echo Err.Number
