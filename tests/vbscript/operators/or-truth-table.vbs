WScript.Echo True Or True, True Or False, False Or True, False Or False
' expect: True True True False
WScript.Echo True Or Null, IsNull(False Or Null), Null Or True, IsNull(Null Or False), IsNull(Null Or Null)
' expect: True True True True True
