WScript.Echo True Eqv True, True Eqv False, False Eqv True, False Eqv False
' expect: True False False True
WScript.Echo IsNull(True Eqv Null), IsNull(Null Eqv False), IsNull(Null Eqv Null)
' expect: True True True
