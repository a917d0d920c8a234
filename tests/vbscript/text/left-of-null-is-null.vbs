' expect: True
WScript.Echo IsNull(Left(Null, 1))
