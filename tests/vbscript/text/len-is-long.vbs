' expect: Long
WScript.Echo TypeName(Len("abc"))
