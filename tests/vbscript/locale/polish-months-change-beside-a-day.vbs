' locale: pl-PL
WScript.Echo MonthName(11)
' expect: listopad
WScript.Echo FormatDateTime(#11/21/2026#, vbLongDate)
' expect: sobota, 21 listopada 2026
WScript.Echo Month("21 listopada 2026"), Month("21 listopad 2026")
' expect: 11 11
