Set re = New RegExp
re.Pattern = 12
re.Global = 1
WScript.Echo re.Replace(31212, 4)
WScript.Echo "" & re.Test(Empty)
' expect: 344
' expect: False
