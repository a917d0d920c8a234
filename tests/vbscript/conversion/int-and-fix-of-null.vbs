WScript.Echo IsNull(Int(Null)), IsNull(Fix(Null))
' expect: True True
