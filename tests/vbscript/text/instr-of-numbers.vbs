' expect: 3
WScript.Echo InStr(12345, 34)
