Const a = b
' expect error: 1045 at 1:10
' expect text: Expected literal constant
