' locale: de-DE
d = #11/21/2026 3:45:30 PM#
WScript.Echo d
' expect: 21.11.2026 15:45:30
WScript.Echo FormatDateTime(d, vbLongDate)
' expect: Samstag, 21. November 2026
WScript.Echo FormatCurrency(-1234.5)
' expect: -1.234,50 €
WScript.Echo MonthName(3, True), WeekdayName(2, True)
' expect: Mrz Mo
