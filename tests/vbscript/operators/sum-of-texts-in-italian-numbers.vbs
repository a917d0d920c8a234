' locale: it-IT
WScript.Echo "1,5" + 1, "1.000" + 1, 1.5 & ""
' expect: 2,5 1001 1,5
