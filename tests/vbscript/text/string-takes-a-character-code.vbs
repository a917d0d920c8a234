' expect: AAA
' expect: AA
WScript.Echo String(3, 65)
WScript.Echo String(2, 65 + 256)
