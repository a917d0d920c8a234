WScript.Echo TimeSerial(0, -15, 0)
' expect: 12:15:00 AM
WScript.Echo #11/21/2026# + TimeSerial(0, -15, 0)
' expect: 11/20/2026 11:45:00 PM
