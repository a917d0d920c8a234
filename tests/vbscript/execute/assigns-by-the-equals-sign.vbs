x = 5
Execute "x = 6"
WScript.Echo x
' expect: 6
