Set re = New RegExp
re.Pattern = "a(x*)"
WScript.Echo TypeName(re.Execute("a")(0).SubMatches(0))
' expect: String
