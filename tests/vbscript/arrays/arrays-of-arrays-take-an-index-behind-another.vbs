rows = Array(Array("a", "b"), Array("c", "d"))
WScript.Echo rows(1)(0)
' expect: c
rows(1)(0) = "e"
WScript.Echo rows(1)(0), rows(0)(0)
' expect: e a
