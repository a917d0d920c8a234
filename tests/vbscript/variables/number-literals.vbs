WScript.Echo 010, 10., .5, 34e5, 1E3
' expect: 10 10 0.5 3400000 1000
WScript.Echo TypeName(32767), TypeName(32768), TypeName(2147483647), TypeName(2147483648)
' expect: Integer Long Long Double
WScript.Echo TypeName(1.0), TypeName(1E3)
' expect: Double Double
