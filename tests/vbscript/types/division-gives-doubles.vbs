WScript.Echo 7 / 2, TypeName(7 / 2), 4 / 2, TypeName(4 / 2)
' expect: 3.5 Double 2 Double
WScript.Echo TypeName(CSng(1) / CSng(2))
' expect: Single
