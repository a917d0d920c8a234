' expect: True
WScript.Echo IsNull(Right(Null, 1))
