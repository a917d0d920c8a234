' locale: it-IT
WScript.Echo CStr(1.5), CDbl("1,5"), CDbl("1.234,5"), IsNumeric("1,5"), CStr(1E20)
' expect: 1,5 1,5 1234,5 True 1E+20
WScript.Echo CStr(True), CCur("1,25"), CInt("2,5")
' expect: True 1,25 2
