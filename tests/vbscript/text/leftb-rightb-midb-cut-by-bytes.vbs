' expect: ab
' expect: bc
' expect: b
WScript.Echo LeftB("abc", 4)
WScript.Echo RightB("abc", 4)
WScript.Echo MidB("abc", 3, 2)
