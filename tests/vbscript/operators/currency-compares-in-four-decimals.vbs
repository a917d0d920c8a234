WScript.Echo CCur(1) = 1.00001, CCur(1) = 1.00006, CCur("0.1") = 0.1, CCur(1) < 1E300, CCur(1) > -1E300
' expect: True False True True True
