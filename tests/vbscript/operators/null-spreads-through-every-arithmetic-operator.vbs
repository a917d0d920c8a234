WScript.Echo IsNull(1 + Null), IsNull(Null - 1), IsNull(Null * 1), IsNull(1 / Null)
' expect: True True True True
WScript.Echo IsNull(Null \ 1), IsNull(1 Mod Null), IsNull(Null ^ 2), IsNull(-Null)
' expect: True True True True
WScript.Echo IsNull(Null + "text"), IsNull("text" - Null), IsNull(1 / Null / 0)
' expect: True True True
