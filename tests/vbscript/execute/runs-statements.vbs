Execute "x = 5 : y = x + 1"
WScript.Echo x, y
' expect: 5 6
