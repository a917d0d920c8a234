' expect: bcd
' expect: ef
WScript.Echo Mid("abcdef", 2, 3)
WScript.Echo Mid("abcdef", 5, 9)
