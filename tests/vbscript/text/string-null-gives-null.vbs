' expect: True
WScript.Echo IsNull(String(2, Null))
