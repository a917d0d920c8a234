' locale: it-IT
WScript.Echo #2/1/2026#, Month(#2/1/2026#)
' expect: 01/02/2026 2
