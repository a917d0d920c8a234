WScript.Echo CDbl("1E+15") = 1E15, CDbl("1E-05") = 0.00001, CDbl(CStr(1E100)) = 1E100, CDbl("1.5E+20") = 1.5E20
' expect: True True True True
