' expect: aXb|c
' expect: a|b|c
WScript.Echo Join(Split("aXbxc", "x"), "|")
WScript.Echo Join(Split("aXbxc", "x", -1, vbTextCompare), "|")
