x = 5
x = x + 1
Dim x
WScript.Echo x
' expect: 6
