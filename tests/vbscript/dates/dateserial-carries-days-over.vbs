WScript.Echo DateSerial(2026, 2, 31)
' expect: 3/3/2026
WScript.Echo DateSerial(2026, 1, 0)
' expect: 12/31/2025
WScript.Echo DateSerial(2026, 1, -30)
' expect: 12/1/2025
WScript.Echo DateSerial(1990 - 10, 8 - 2, 1 - 1)
' expect: 5/31/1980
