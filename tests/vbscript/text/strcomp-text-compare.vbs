' expect: 0
' expect: -1
WScript.Echo StrComp("abc", "ABC", vbTextCompare)
WScript.Echo StrComp("a", "B", 1)
