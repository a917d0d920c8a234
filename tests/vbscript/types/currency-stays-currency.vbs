c = CCur("1.25")
WScript.Echo TypeName(c), c + 1, TypeName(c + 1), TypeName(c * 2)
' expect: Currency 2.25 Currency Currency
