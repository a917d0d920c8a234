Set re = New RegExp
re.Pattern = "(?<=a)b"
WScript.Echo "set"
re.Test "x"
' expect: set
' expect error: 5018 at 4:0
' expect text: Unexpected quantifier
