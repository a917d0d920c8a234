Set re = New RegExp
re.Pattern = "^b"
WScript.Echo "" & re.Test("a" & vbLf & "B")
re.MultiLine = True
re.IgnoreCase = True
WScript.Echo "" & re.Test("a" & vbLf & "B")
re.IgnoreCase = False
WScript.Echo "" & re.Test("a" & vbLf & "B")
' expect: False
' expect: True
' expect: False
