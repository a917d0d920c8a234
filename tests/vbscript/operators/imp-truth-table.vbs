WScript.Echo True Imp True, True Imp False, False Imp True, False Imp False
' expect: True False True True
WScript.Echo IsNull(True Imp Null), False Imp Null, Null Imp True, IsNull(Null Imp False), IsNull(Null Imp Null)
' expect: True True True True True
