' expect: Long
WScript.Echo TypeName(InStr("a", "a"))
