' locale: it-IT
d = #11/21/2026 3:45:30 PM#
WScript.Echo FormatDateTime(d)
' expect: 21/11/2026 15:45:30
WScript.Echo FormatDateTime(d, vbLongDate)
' expect: sabato 21 novembre 2026
WScript.Echo FormatDateTime(d, vbLongTime), FormatDateTime(d, vbShortTime)
' expect: 15:45:30 15:45
WScript.Echo FormatNumber(-1234567.891), FormatPercent(0.125)
' expect: -1.234.567,89 12,50%
WScript.Echo FormatCurrency(1234.5)
' expect: 1.234,50 €
WScript.Echo FormatCurrency(-1234.5)
' expect: -1.234,50 €
