WScript.Echo IsNull(Null = Null), IsNull(Null <> 1), IsNull(1 < Null), IsNull("" >= Null), IsNull(Null > Empty)
' expect: True True True True True
WScript.Echo IsNull(Not (Null = 1))
' expect: True
