' expect: 457
' expect: a b
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("b") = 2
On Error Resume Next
d.Key("a") = "b"
WScript.Echo Err.Number
WScript.Echo Join(d.Keys)
