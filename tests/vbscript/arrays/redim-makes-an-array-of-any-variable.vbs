Dim v
ReDim v(2)
v(2) = "x"
WScript.Echo UBound(v), v(2)
' expect: 2 x
v = Array(1, 2)
ReDim Preserve v(2)
v(2) = 3
WScript.Echo Join(v)
' expect: 1 2 3
