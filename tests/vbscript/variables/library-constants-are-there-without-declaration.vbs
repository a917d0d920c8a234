WScript.Echo vbTrue, vbUseDefault, vbTextCompare, vbYes
' expect: -1 -2 1 6
WScript.Echo Len(vbCrLf), Asc(vbTab), vbString, vbArray
' expect: 2 9 8 8192
