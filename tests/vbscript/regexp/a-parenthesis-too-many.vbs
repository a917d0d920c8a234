Set re = New RegExp
re.Pattern = "a)"
WScript.Echo "set"
re.Test "x"
' expect: set
' expect error: 5017 at 4:0
' expect text: Syntax error in regular expression
