Const a = -&H8000, b = -&H80000000, c = -1.5
WScript.Echo a & " " & TypeName(a)
WScript.Echo b & " " & TypeName(b)
WScript.Echo c
' expect: 32768 Long
' expect: 2147483648 Double
' expect: -1.5
