Dim t(1, 2, 3)
WScript.Echo UBound(t), UBound(t, 1), UBound(t, 2), UBound(t, 3)
' expect: 1 1 2 3
WScript.Echo LBound(t, 3)
' expect: 0
t(1, 2, 3) = "corner"
t(0, 2, 3) = "edge"
WScript.Echo t(1, 2, 3), t(0, 2, 3), TypeName(t(1, 1, 3))
' expect: corner edge Empty
