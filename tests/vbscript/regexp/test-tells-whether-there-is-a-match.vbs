Set re = New RegExp
re.Pattern = "is."
WScript.Echo re.Test("this is") & " " & re.Test("his")
' expect: True False
