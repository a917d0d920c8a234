Set re = New RegExp
re.Global = "perhaps"
' expect error: 13 at 2:0
' expect text: Type mismatch
