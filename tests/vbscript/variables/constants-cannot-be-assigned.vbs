Const limit = 5
limit = 6
' expect error: 501 at 2:0
