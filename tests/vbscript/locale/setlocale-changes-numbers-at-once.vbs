WScript.Echo CStr(1.5), FormatNumber(1234.5)
' expect: 1.5 1,234.50
SetLocale "it-it"
WScript.Echo CStr(1.5), FormatNumber(1234.5), CDbl("1,5")
' expect: 1,5 1.234,50 1,5
SetLocale "en-us"
WScript.Echo CStr(1.5), CDbl("1.5")
' expect: 1.5 1.5
