If True Then x=1Else x=2
WScript.Echo x
' expect: 1
