Sub S(a, b)
End Sub
S(1, 2)
' expect error: 1044
' expect text: Cannot use parentheses when calling a Sub
