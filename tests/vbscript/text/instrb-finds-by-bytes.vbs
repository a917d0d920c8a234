' expect: 3
' expect: 7
WScript.Echo InStrB("abc", "b")
WScript.Echo InStrB(4, "abcb", "b")
