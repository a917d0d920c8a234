x = 2147483647
WScript.Echo TypeName(x), x + 1, TypeName(x + 1)
' expect: Long 2147483648 Double
WScript.Echo 100000 * 100000, TypeName(100000 * 100000)
' expect: 10000000000 Double
