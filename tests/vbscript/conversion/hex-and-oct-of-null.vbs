WScript.Echo IsNull(Hex(Null)), IsNull(Oct(Null))
' expect: True True
