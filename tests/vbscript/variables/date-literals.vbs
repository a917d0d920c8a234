d = #2024-02-29#
WScript.Echo TypeName(d), Year(d), Month(d), Day(d)
' expect: Date 2024 2 29
d = #3/4/2024 5:06:07 PM#
WScript.Echo Month(d), Day(d), Hour(d), Minute(d), Second(d)
' expect: 3 4 17 6 7
