' locale: es-ES
t = FormatDateTime(#11/21/2026#, vbLongDate)
WScript.Echo t
' expect: sábado, 21 de noviembre de 2026
WScript.Echo CDate(t)
' expect: 21/11/2026
