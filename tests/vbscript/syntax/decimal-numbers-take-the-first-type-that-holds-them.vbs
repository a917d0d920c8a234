WScript.Echo TypeName(32767)
WScript.Echo TypeName(32768)
WScript.Echo TypeName(2147483647)
WScript.Echo TypeName(2147483648)
WScript.Echo TypeName(1.0)
WScript.Echo TypeName(1e0)
' expect: Integer
' expect: Long
' expect: Long
' expect: Double
' expect: Double
' expect: Double
