' expect: a|b c
' expect: -1
' expect: a b c
' expect: 2
WScript.Echo Join(Split("a b c", " ", 2), "|")
WScript.Echo UBound(Split("a b", " ", 0))
WScript.Echo Join(Split("a b c", , 1), "|")
WScript.Echo UBound(Split("a b c", " ", -1))
