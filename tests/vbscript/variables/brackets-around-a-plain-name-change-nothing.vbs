x = 5
WScript.Echo [x]
' expect: 5
[y] = 6
WScript.Echo y
' expect: 6
