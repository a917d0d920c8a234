' expect: 3
' expect: 0
WScript.Echo InStr("abcabc", "c")
WScript.Echo InStr("abc", "x")
