WScript.Echo Day(DateSerial(2024, 3, 0)), Day(DateSerial(2023, 3, 0)), Day(DateSerial(2026, 12 + 1, 0))
' expect: 29 28 31
