d = #11/21/2026 3:45:00 PM#
SetLocale "en-gb"
WScript.Echo d
' expect: 21/11/2026 15:45:00
SetLocale "sv-se"
WScript.Echo d
' expect: 2026-11-21 15:45:00
SetLocale "en-us"
WScript.Echo d
' expect: 11/21/2026 3:45:00 PM
