' expect: 438
Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.Frobnicate
WScript.Echo Err.Number
