On Error Resume Next
SetLocale "klingon"
WScript.Echo GetLocale, FormatNumber(1234.5)
' expect: 1033 1,234.50
