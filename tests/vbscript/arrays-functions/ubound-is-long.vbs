' expect: Long
' expect: Long
WScript.Echo TypeName(UBound(Array(1)))
WScript.Echo TypeName(LBound(Array(1)))
