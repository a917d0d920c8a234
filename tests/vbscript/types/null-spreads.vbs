WScript.Echo IsNull(Null + 1), IsNull(1 * Null), IsNull(-Null), IsNull(Null ^ 2)
' expect: True True True True
WScript.Echo IsNull(Null = Null), IsNull(1 < Null), IsNull(Null <> "a")
' expect: True True True
WScript.Echo IsNull(Not Null), IsNull(Null & Null), Null & "x"
' expect: True True x
