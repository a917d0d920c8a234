WScript.Echo CDate("13:45")
' expect: 1:45:00 PM
WScript.Echo CDate("1:45:30 PM")
' expect: 1:45:30 PM
WScript.Echo CDate("12:00 am")
' expect: 12:00:00 AM
WScript.Echo CDate("3 PM")
' expect: 3:00:00 PM
WScript.Echo CDate("12:30pm")
' expect: 12:30:00 PM
WScript.Echo CDate("13:55 PM")
' expect: 1:55:00 PM
