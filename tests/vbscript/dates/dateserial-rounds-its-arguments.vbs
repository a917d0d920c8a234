WScript.Echo DateSerial(2026, 1.5, "3")
' expect: 2/3/2026
