For i = 1 To 2 : For Each j In Array(1, 2) : n = n + i * j : Next : Next
WScript.Echo n
' expect: 9
