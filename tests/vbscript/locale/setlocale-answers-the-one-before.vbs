WScript.Echo SetLocale("it-it"), SetLocale(1031), SetLocale("en-us"), GetLocale
' expect: 1033 1040 1031 1033
