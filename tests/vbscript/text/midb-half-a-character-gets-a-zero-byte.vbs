' expect: 1
' expect: ab
WScript.Echo Len(MidB("abc", 1, 1))
WScript.Echo LeftB("abc", 3)
