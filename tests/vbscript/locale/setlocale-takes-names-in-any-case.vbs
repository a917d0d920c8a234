SetLocale "DE-ch"
WScript.Echo GetLocale
' expect: 2055
SetLocale "fr"
WScript.Echo GetLocale
' expect: 1036
