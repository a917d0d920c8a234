WScript.Echo MonthName(1), MonthName(5), MonthName(12)
' expect: January May December
WScript.Echo MonthName(9, True), MonthName(9, False)
' expect: Sep September
