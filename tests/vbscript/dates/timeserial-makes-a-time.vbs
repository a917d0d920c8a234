WScript.Echo TimeSerial(15, 45, 30)
' expect: 3:45:30 PM
WScript.Echo TimeSerial(0, 0, 0)
' expect: 12:00:00 AM
WScript.Echo TypeName(TimeSerial(1, 2, 3))
' expect: Date
