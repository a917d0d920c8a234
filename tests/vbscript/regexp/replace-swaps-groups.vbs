Set re = New RegExp
re.Pattern = "(\S+)(\s+)(\S+)"
re.Global = True
WScript.Echo re.Replace("The quick brown fox", "$3$2$1")
' expect: quick The fox brown
