' expect: 4
' expect: 2
' locale: it-IT
WScript.Echo Len(1.25)
WScript.Echo InStr(1.25, ",")
