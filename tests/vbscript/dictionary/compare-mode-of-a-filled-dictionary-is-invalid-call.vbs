' expect: 5
' expect: 0
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
On Error Resume Next
d.CompareMode = 1
WScript.Echo Err.Number
WScript.Echo d.CompareMode
