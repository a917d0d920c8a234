Set re = New RegExp
re.Pattern = "a"
Set ms = re.Execute("b")
WScript.Echo ms(0)
' expect error: 5 at 4:0
' expect text: Invalid procedure call or argument
