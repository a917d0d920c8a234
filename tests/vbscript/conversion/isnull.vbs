WScript.Echo IsNull(Null), IsNull(Null + 1), IsNull(Empty), IsNull(""), IsNull(Nothing)
' expect: True True False False False
