' expect: 2
' expect: 0
WScript.Echo InStr(1, "abc", "B", vbTextCompare)
WScript.Echo InStr(1, "abc", "B", vbBinaryCompare)
