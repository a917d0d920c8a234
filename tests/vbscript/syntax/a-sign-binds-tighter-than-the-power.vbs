WScript.Echo -3 ^ 2
WScript.Echo 2 ^ -1
' expect: 9
' expect: 0.5
