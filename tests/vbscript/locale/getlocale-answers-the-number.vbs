WScript.Echo GetLocale(), TypeName(GetLocale())
' expect: 1033 Long
