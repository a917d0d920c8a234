Set re = New RegExp
re.Pattern = "a.b"
WScript.Echo re.Test("a" & vbLf & "b") & " " & re.Test("a" & vbTab & "b")
' expect: False True
re.Pattern = "a[\s\S]b"
WScript.Echo "" & re.Test("a" & vbLf & "b")
' expect: True
' Only the line feed is left out: the other character of a line end stays with its line.
re.Pattern = ".*"
WScript.Echo re.Execute("one" & vbCrLf & "two")(0).Length
' expect: 4
