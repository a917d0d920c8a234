' expect: True
WScript.Echo IsNull(Mid(Null, 1, 2))
