Set re = New RegExp
re.Pattern = ""
re.Global = True
WScript.Echo re.Replace("ab", "-")
re.Pattern = "x*"
WScript.Echo re.Replace("axb", "-")
' expect: -a-b-
' expect: -a--b-
