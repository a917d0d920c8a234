WScript.Echo TimeSerial(12 - 6, -15, 0)
' expect: 5:45:00 AM
WScript.Echo TimeSerial(0, 75, 90)
' expect: 1:16:30 AM
WScript.Echo TimeSerial(25, 0, 0)
' expect: 12/31/1899 1:00:00 AM
