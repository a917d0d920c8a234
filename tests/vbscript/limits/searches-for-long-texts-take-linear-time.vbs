' Every place of the text begins and ends like the part.
n = 400000
text = String(2 * n, "a")
part = String(n, "a") & "b" & "a"
WScript.Echo InStr(text, part)
WScript.Echo InStr(1, text, UCase(part), vbTextCompare)
WScript.Echo InStrRev(text, part)
WScript.Echo InStrRev(text, UCase(part), -1, vbTextCompare)
WScript.Echo InStrB(text, part)
WScript.Echo UBound(Split(text & part, part))
WScript.Echo Len(Replace(text & part & text, part, ""))
WScript.Echo InStr(text & part, part) & " " & InStrRev(text & part, part)
' expect: 0
' expect: 0
' expect: 0
' expect: 0
' expect: 0
' expect: 1
' expect: 1600000
' expect: 800001 800001
