Dim declared
WScript.Echo TypeName(declared), TypeName(undeclared)
' expect: Empty Empty
WScript.Echo declared = 0, declared = ""
' expect: True True
