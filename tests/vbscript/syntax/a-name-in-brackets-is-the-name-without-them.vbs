[plain] = 5
WScript.Echo plain
' expect: 5
