' expect: 0
WScript.Echo InStrRev("abc", "c", 4)
