WScript.Echo Eval("1 + 2 * 3")
' expect: 7
x = 5
WScript.Echo Eval("x * x"), Eval("""a"" & x")
' expect: 25 a5
