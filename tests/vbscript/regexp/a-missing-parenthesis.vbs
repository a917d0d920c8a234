Set re = New RegExp
re.Pattern = "(a"
WScript.Echo "set"
re.Test "x"
' expect: set
' expect error: 5020 at 4:0
' expect text: Expected ')' in regular expression
