WScript.Echo InStr(1, "abc", "B", 1)
x = Replace("aaa", "a", "b", , 2)
WScript.Echo x
' expect: 2
' expect: bba
