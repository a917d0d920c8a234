b = CByte(200)
WScript.Echo TypeName(b), b + CByte(100), TypeName(b + CByte(100))
' expect: Byte 300 Integer
WScript.Echo -b, TypeName(-b)
' expect: -200 Integer
