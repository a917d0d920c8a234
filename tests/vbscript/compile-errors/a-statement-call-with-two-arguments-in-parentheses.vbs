StrComp("x", "y")
' expect error: 1044 at 1:17
' expect text: Cannot use parentheses when calling a Sub
