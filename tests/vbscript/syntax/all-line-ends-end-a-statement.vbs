x = 1y = 2
z = 3
WScript.Echo x + y + z
' expect: 6
