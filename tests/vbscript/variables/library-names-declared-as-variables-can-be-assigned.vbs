Dim second
second = 5
WScript.Echo second
' expect: 5
