' expect: 3
' expect: 3
' expect: 4
s = "a" & Chr(0) & "b"
WScript.Echo Len(s)
WScript.Echo InStr(s, "b")
WScript.Echo Len(Replace(s, Chr(0), "--"))
