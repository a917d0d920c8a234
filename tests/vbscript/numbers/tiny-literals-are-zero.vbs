WScript.Echo 1E-400, 1E-400 = 0, TypeName(1E-400)
' expect: 0 True Double
