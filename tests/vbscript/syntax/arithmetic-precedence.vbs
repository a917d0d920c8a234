WScript.Echo 2 + 3 * 4
WScript.Echo 20 \ 3 * 2
WScript.Echo 20 Mod 3 * 4
WScript.Echo 20 Mod 7 \ 2
WScript.Echo 10 - 4 - 3
WScript.Echo 1 + 2 & 3 + 4
WScript.Echo 100 / 10 / 5
WScript.Echo 10 - 7 Mod 4
' expect: 14
' expect: 3
' expect: 8
' expect: 2
' expect: 3
' expect: 37
' expect: 2
' expect: 7
