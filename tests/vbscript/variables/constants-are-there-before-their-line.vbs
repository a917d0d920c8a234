WScript.Echo c
' expect: 4
Const c = 4
