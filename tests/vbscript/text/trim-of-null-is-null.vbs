' expect: True
' expect: True
' expect: True
WScript.Echo IsNull(Trim(Null))
WScript.Echo IsNull(LTrim(Null))
WScript.Echo IsNull(RTrim(Null))
