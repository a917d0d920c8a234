Set re = New RegExp
re.Pattern = "a.b"
WScript.Echo re.Test("a" & vbLf & "b") & " " & re.Test("a" & vbTab & "b")
re.Pattern = "a[\s\S]b"
WScript.Echo "" & re.Test("a" & vbLf & "b")
' expect: False True
' expect: True
