Set re = New RegExp
re.Pattern = "(a)"
Set m = re.Execute("a")(0)
WScript.Echo m.SubMatches(0)
WScript.Echo m.SubMatches(1)
' expect: a
' expect error: 5 at 5:0
