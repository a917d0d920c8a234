WScript.Echo IsNull(DateAdd("d", 1, Null))
' expect: True
