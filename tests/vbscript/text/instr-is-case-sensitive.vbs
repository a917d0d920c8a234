' expect: 0
WScript.Echo InStr("abc", "B")
