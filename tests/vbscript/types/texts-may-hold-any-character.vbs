s = "a" & Chr(0) & "b"
WScript.Echo Len(s), InStr(s, "b"), Asc(Mid(s, 2, 1))
' expect: 3 3 0
s = ChrW(8364) & ChrW(233)
WScript.Echo Len(s), AscW(s), AscW(Mid(s, 2))
' expect: 2 8364 233
