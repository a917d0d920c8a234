' expect: ab
' expect: abcd
WScript.Echo Left("abcdef", 2.5)
WScript.Echo Left("abcdef", 3.5)
