WScript.Echo DateSerial(2026, 11, 21)
' expect: 11/21/2026
WScript.Echo TypeName(DateSerial(2026, 11, 21))
' expect: Date
