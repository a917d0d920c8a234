WScript.Echo True And True, True And False, False And True, False And False
' expect: True False False False
WScript.Echo IsNull(True And Null), False And Null, IsNull(Null And True), Null And False, IsNull(Null And Null)
' expect: True False True False True
