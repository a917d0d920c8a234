' expect: Integer
a = Array(1, 2)
x = Join(a) & Join(Filter(a, "1"))
WScript.Echo TypeName(a(0))
