WScript.Echo Null And False, IsNull(Null And True), Null Or True, IsNull(Null Or False)
' expect: False True True True
WScript.Echo IsNull(Null Xor True), IsNull(Null Eqv Null), Null Imp True, False Imp Null
' expect: True True True True
