Set re = New RegExp
re.Pattern = "(a)|(b)"
Set m = re.Execute("b")(0)
WScript.Echo TypeName(m.SubMatches(0)) & " " & TypeName(m.SubMatches(1))
WScript.Echo IsEmpty(m.SubMatches(0)) & " [" & m.SubMatches(0) & "]"
' expect: Empty String
' expect: True []
