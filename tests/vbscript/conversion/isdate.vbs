WScript.Echo IsDate(#2000-01-01#), IsDate("1/1/2000"), IsDate("12:30"), IsDate("March 4, 2000"), IsDate(CDate(0))
' expect: True True True True True
WScript.Echo IsDate(36526), IsDate("36526"), IsDate(""), IsDate("13/13/2000"), IsDate(Null), IsDate(Empty), IsDate(Nothing), IsDate(Array())
' expect: False False False False False False False False
