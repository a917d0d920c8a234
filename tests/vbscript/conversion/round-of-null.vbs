WScript.Echo IsNull(Round(Null)), IsNull(Round(Null, 2))
' expect: True True
