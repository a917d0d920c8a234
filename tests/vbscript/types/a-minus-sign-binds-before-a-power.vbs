WScript.Echo -3 ^ 2, 2 ^ -2
' expect: 9 0.25
