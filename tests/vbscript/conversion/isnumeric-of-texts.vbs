WScript.Echo IsNumeric("12")
' expect: True
WScript.Echo IsNumeric("-1.5")
' expect: True
WScript.Echo IsNumeric("1,234")
' expect: True
WScript.Echo IsNumeric("$5")
' expect: True
WScript.Echo IsNumeric("(5)")
' expect: True
WScript.Echo IsNumeric("1e5")
' expect: True
WScript.Echo IsNumeric("1d5")
' expect: True
WScript.Echo IsNumeric("&HFF")
' expect: True
WScript.Echo IsNumeric("&O7")
' expect: True
WScript.Echo IsNumeric(" 1 ")
' expect: True
WScript.Echo IsNumeric("")
' expect: False
WScript.Echo IsNumeric("abc")
' expect: False
WScript.Echo IsNumeric("1e")
' expect: False
WScript.Echo IsNumeric("1.2.3")
' expect: False
WScript.Echo IsNumeric("&HG")
' expect: False
WScript.Echo IsNumeric("1e400")
' expect: False
WScript.Echo IsNumeric("12%")
' expect: False
