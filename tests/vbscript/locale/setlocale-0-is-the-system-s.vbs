SetLocale 0
a = GetLocale
SetLocale 2048
WScript.Echo a = GetLocale
' expect: True
