WScript.Echo IsNumeric(1), IsNumeric(1.5), IsNumeric(True), IsNumeric(Empty), IsNumeric(CCur(1)), IsNumeric(CByte(1))
' expect: True True True True True True
WScript.Echo IsNumeric(Null), IsNumeric(#2000-01-01#), IsNumeric(Nothing), IsNumeric(Array(1))
' expect: False False False False
