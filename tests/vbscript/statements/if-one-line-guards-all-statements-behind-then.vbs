x = 0
If False Then x = 1 : x = 2
WScript.Echo x
' expect: 0
If True Then x = 3 : x = x + 1
WScript.Echo x
' expect: 4
