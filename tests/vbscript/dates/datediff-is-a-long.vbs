WScript.Echo TypeName(DateDiff("d", 1, 2))
' expect: Long
