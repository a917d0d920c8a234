Set re = New RegExp
re.Pattern = ChrW(233) & ChrW(1078)
re.IgnoreCase = True
WScript.Echo "" & re.Test(ChrW(201) & ChrW(1046))
re.IgnoreCase = False
WScript.Echo "" & re.Test(ChrW(201) & ChrW(1046))
' expect: True
' expect: False
