WScript.Echo CDate("13.50")
' expect: 1:50:00 PM
WScript.Echo CDate("12.25.10")
' expect: 12:25:10 PM
WScript.Echo CDate("0.12")
' expect: 12:12:00 AM
WScript.Echo IsDate("12.25.2010")
' expect: False
WScript.Echo IsDate("24.12")
' expect: False
WScript.Echo IsDate("12.75")
' expect: False
