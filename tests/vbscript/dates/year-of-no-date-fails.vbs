WScript.Echo Year("abc")
' expect error: 13 at 1:0
