Dim arr(2)
arr (0) = 2 Xor -2
WScript.Echo arr(0)
' expect: -4
