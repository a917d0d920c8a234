' expect: True
WScript.Echo IsNull(Len(Null))
