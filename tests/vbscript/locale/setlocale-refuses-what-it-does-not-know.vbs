On Error Resume Next
SetLocale "xx-yy"
WScript.Echo Err.Number
' expect: 447
Err.Clear
SetLocale 1
WScript.Echo Err.Number
' expect: 447
Err.Clear
SetLocale ""
WScript.Echo Err.Number
' expect: 447
Err.Clear
SetLocale Null
WScript.Echo Err.Number
' expect: 94
Err.Clear
