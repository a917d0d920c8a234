' expect: 6
' expect: 0
WScript.Echo InStr(4, "abcabc", "c")
WScript.Echo InStr(7, "abcabc", "c")
