d = #2024-01-31#
WScript.Echo TypeName(d + 1), Day(d + 1), Month(d + 1)
' expect: Date 1 2
WScript.Echo TypeName(d - 1), Day(d - 1)
' expect: Date 30
WScript.Echo #2024-03-01# - #2024-02-01#, #2024-03-01# > #2024-02-01#
' expect: 29 True
