WScript.Echo Year(Empty), Month(Empty), Day(Empty), Hour(Empty)
' expect: 1899 12 30 0
