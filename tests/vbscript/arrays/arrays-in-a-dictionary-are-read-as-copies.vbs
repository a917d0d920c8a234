Set d = CreateObject("Scripting.Dictionary")
d("a") = Array(1, 2)
WScript.Echo d("a")(1)
' expect: 2
copy = d("a")
copy(1) = 9
WScript.Echo d("a")(1)
' expect: 2
d("a") = copy
WScript.Echo d("a")(1)
' expect: 9
