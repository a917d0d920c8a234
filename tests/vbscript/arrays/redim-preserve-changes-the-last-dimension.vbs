Dim t()
ReDim t(1, 1)
t(0, 0) = "a" : t(1, 0) = "b" : t(0, 1) = "c" : t(1, 1) = "d"
ReDim Preserve t(1, 2)
WScript.Echo t(0, 0), t(1, 0), t(0, 1), t(1, 1), TypeName(t(1, 2))
' expect: a b c d Empty
