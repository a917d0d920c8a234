Dim Total
total = 1
TOTAL = tOtAl + 1
WScript.Echo Total
' expect: 2
