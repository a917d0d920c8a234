code = Replace(String(5000, "x"), "x", "n = n + 1" & vbLf)
Execute code
WScript.Echo n
' expect: 5000
