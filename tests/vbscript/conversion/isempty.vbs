WScript.Echo IsEmpty(Empty), IsEmpty(undeclared), IsEmpty(""), IsEmpty(0), IsEmpty(Null), IsEmpty(Nothing)
' expect: True True False False False False
