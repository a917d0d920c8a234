' expect: 0
' expect: 0
' expect: 0
WScript.Echo InStr("", "a")
WScript.Echo InStr("", "")
WScript.Echo InStr(Empty, "a")
