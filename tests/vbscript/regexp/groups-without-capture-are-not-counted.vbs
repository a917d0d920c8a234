Set re = New RegExp
re.Pattern = "(?:a|b)(c)"
Set m = re.Execute("bc")(0)
WScript.Echo m.SubMatches.Count & m.SubMatches(0)
' expect: 1c
