WScript.Echo 7.5 \ 2, 6.5 \ 2, 7 \ 2.5, TypeName(7.5 \ 2)
' expect: 4 3 3 Long
