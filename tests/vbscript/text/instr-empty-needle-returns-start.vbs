' expect: 1
' expect: 3
' expect: 0
WScript.Echo InStr("abc", "")
WScript.Echo InStr(3, "abc", "")
WScript.Echo InStr(4, "abc", "")
