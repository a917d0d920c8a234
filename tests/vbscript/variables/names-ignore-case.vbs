Total = 5
TOTAL = total + 1
WScript.Echo tOtAl
' expect: 6
