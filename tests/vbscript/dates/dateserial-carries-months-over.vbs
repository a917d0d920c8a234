WScript.Echo DateSerial(2026, 13, 1)
' expect: 1/1/2027
WScript.Echo DateSerial(2026, 0, 1)
' expect: 12/1/2025
WScript.Echo DateSerial(2026, -11, 1)
' expect: 1/1/2025
