' locale: it-IT
WScript.Echo MonthName(1), MonthName(8, True), WeekdayName(1), WeekdayName(2, True)
' expect: gennaio ago domenica lun
