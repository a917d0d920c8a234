' locale: sv-SE
WScript.Echo #2/1/2026#, Month("26-02-01")
' expect: 2026-02-01 2
