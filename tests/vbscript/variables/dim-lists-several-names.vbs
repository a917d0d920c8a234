Dim a, b(2), c()
WScript.Echo TypeName(a), TypeName(b), UBound(b), TypeName(c)
' expect: Empty Variant() 2 Variant()
