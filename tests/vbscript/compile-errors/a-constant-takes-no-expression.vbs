Const a = 1 + 2
' expect error: 1045 at 1:12
' expect text: Expected literal constant
