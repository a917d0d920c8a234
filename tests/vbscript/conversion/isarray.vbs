Dim a(2), b()
c = a
WScript.Echo IsArray(a), IsArray(b), IsArray(c), IsArray(Array()), IsArray("a"), IsArray(Empty), IsArray(Nothing)
' expect: True True True True False False False
