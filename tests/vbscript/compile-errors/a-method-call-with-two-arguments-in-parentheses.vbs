o.Add("key", 1)
' expect error: 1044 at 1:15
' expect text: Cannot use parentheses when calling a Sub
