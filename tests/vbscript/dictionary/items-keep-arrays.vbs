' expect: 2
' expect: 2
Set d = CreateObject("Scripting.Dictionary")
d("a") = Array(1, 2, 3)
WScript.Echo d("a")(1)
WScript.Echo UBound(d("a"))
