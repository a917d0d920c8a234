x = "none"
If True Then If False Then x = "inner" Else x = "inner else"
WScript.Echo x
' expect: inner else
x = "none"
If False Then If True Then x = "inner" Else x = "inner else"
WScript.Echo x
' expect: none
