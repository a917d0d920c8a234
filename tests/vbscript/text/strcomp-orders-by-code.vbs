' expect: -1
' expect: 1
' expect: 0
' expect: 1
WScript.Echo StrComp("a", "b")
WScript.Echo StrComp("b", "a")
WScript.Echo StrComp("a", "a")
WScript.Echo StrComp("a", "A")
