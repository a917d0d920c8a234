Const a = -1, b = +2, c = (3), d = -(4), e = - -5
Const f = "x", g = True, h = #1/2/2003#, i = Null, j = Empty, k = &HFF
WScript.Echo a + b + c + d + e & f & g & Year(h) & k
WScript.Echo TypeName(i) & TypeName(j) & TypeName(a)
' expect: 5xTrue2003255
' expect: NullEmptyInteger
