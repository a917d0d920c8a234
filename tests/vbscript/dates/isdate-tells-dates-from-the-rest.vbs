WScript.Echo IsDate("11/21/2026"), IsDate(#1/1/2026#), IsDate(Now)
' expect: True True True
WScript.Echo IsDate("abc"), IsDate(""), IsDate(38000), IsDate(Null), IsDate(Empty)
' expect: False False False False False
WScript.Echo IsDate("2/29/2024"), IsDate("2/29/2023")
' expect: True False
