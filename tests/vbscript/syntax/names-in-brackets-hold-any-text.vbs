[my total (in %)] = 3
[if] = 4
WScript.Echo [MY TOTAL (in %)] + [if]
' expect: 7
