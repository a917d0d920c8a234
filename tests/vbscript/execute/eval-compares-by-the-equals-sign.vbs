x = 5
WScript.Echo Eval("x = 5"), Eval("x = 6"), x
' expect: True False 5
