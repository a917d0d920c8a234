WScript.Echo 1 < 2, 2 <= 2, 3 >= 4, 1 <> 1, TypeName(1 < 2)
' expect: True True False False Boolean
WScript.Echo (1 < 2) + 0
' expect: -1
