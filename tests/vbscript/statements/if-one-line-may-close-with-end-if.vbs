If True Then x = 1 End If
WScript.Echo x
' expect: 1
If False Then x = 2 Else x = 3 End If
WScript.Echo x
' expect: 3
