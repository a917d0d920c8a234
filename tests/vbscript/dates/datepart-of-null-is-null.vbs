WScript.Echo IsNull(DatePart("d", Null))
' expect: True
