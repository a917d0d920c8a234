WScript.Echo 10., .5, 5.25, 1E3, 1e-3, 34E5, 1.5E+2
' expect: 10 0.5 5.25 1000 0.001 3400000 150
WScript.Echo TypeName(1), TypeName(32767), TypeName(32768), TypeName(2147483647), TypeName(2147483648), TypeName(1.0), TypeName(1E0)
' expect: Integer Integer Long Long Double Double Double
