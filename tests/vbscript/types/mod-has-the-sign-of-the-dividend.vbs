WScript.Echo 7 Mod 3, -7 Mod 3, 7 Mod -3, -7 Mod -3
' expect: 1 -1 1 -1
WScript.Echo 5.5 Mod 2, 6.5 Mod 4
' expect: 0 2
