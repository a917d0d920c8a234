StrComp("x", _
  "y")
' expect error: 1044 at 2:6
' expect text: Cannot use parentheses when calling a Sub
