a = Eval("Array(1, 2, 3)")
WScript.Echo UBound(a), Eval("a(1)")
' expect: 2 2
