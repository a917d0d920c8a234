WScript.Echo IsNull(TimeValue(Null))
' expect: True
