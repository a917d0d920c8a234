Set re = New RegExp
re.Pattern = "a$"
WScript.Echo re.Test("a") & " " & re.Test("a" & vbLf) & " " & re.Test("a" & vbCrLf)
' expect: True False False
