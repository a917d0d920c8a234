Set re = New RegExp
re.Pattern = "[a-z"
WScript.Echo "set"
re.Test "x"
' expect: set
' expect error: 5019 at 4:0
' expect text: Expected ']' in regular expression
