Set re = New RegExp
re.Pattern = "(a)"
Set ms = re.Execute("a")
WScript.Echo TypeName(re) & " " & TypeName(ms) & " " & TypeName(ms(0)) & " " & TypeName(ms(0).SubMatches)
' expect: IRegExp2 IMatchCollection2 IMatch2 ISubMatches
