' expect: 3
' expect: 2
WScript.Echo InStrRev("abc", "")
WScript.Echo InStrRev("abc", "", 2)
