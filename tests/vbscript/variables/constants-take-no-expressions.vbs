Const a = 1 + 2
' expect error: 1045
' expect text: Expected literal constant
