x = 1 ' not continued _
WScript.Echo x
' expect: 1
