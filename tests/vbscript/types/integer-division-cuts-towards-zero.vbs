WScript.Echo 7 \ 2, -7 \ 2, 7 \ -2, TypeName(7 \ 2)
' expect: 3 -3 -3 Integer
