' expect: 32811
Set d = CreateObject("Scripting.Dictionary")
On Error Resume Next
d.Key("x") = "y"
WScript.Echo Err.Number
