' locale: en-GB
WScript.Echo #2/1/2026#, Month("1/2/2026")
' expect: 01/02/2026 2
WScript.Echo FormatDateTime(#11/21/2026#, vbLongDate), FormatCurrency(-1.5)
' expect: 21 November 2026 -£1.50
