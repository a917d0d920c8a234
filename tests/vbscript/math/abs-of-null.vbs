WScript.Echo IsNull(Abs(Null))
' expect: True
