' expect: 5
' expect: 1
Set d = CreateObject("Scripting.Dictionary")
Set d("in") = CreateObject("Scripting.Dictionary")
d("in")("x") = 5
WScript.Echo d("in")("x")
WScript.Echo d("in").Count
