WScript.Echo DatePart("y", #12/31/2024#)
' expect: 366
WScript.Echo DatePart("y", #3/1/2024#)
' expect: 61
WScript.Echo DatePart("y", #3/1/2023#)
' expect: 60
WScript.Echo DatePart("y", #12/31/1900#)
' expect: 365
