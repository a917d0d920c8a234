' expect: a b
' expect: ab
' expect: a, b
WScript.Echo Join(Array("a", "b"))
WScript.Echo Join(Array("a", "b"), "")
WScript.Echo Join(Array("a", "b"), ", ")
