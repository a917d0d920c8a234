x = UBound(a
' expect error: 1006 at 1:12
' expect text: Expected ')'
