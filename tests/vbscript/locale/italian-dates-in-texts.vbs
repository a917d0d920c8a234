' locale: it-IT
WScript.Echo Month("1/2/2026"), Month("21 nov 2026"), Month("sabato 21 novembre 2026"), Month("1.2.2026")
' expect: 2 11 11 2
WScript.Echo CDate("15.30"), CDate("1/2/2026 15.30")
' expect: 15:30:00 01/02/2026 15:30:00
WScript.Echo IsDate("1,5"), IsNumeric("1,5")
' expect: False True
