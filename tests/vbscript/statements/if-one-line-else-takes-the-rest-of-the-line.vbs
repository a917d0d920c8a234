If False Then a = 1 : b = 1 Else a = 2 : b = 3
WScript.Echo a, b
' expect: 2 3
If True Then a = 5 Else a = 6 : b = 7
WScript.Echo a, b
' expect: 5 3
