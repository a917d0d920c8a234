WScript.Echo 2 ^ 3 ^ 2, 2 ^ 10, 2 ^ -1, TypeName(2 ^ 2)
' expect: 64 1024 0.5 Double
