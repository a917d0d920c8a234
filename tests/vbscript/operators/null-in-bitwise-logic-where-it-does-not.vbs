WScript.Echo IsNull(Null And 5), IsNull(Null Or 0), IsNull(Null Or Empty), IsNull(-1 Imp Null), IsNull(Null Imp 0), IsNull(CByte(255) Imp Null)
' expect: True True True True True True
