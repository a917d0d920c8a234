SetLocale "1040"
WScript.Echo GetLocale
' expect: 1040
