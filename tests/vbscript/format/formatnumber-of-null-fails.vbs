x = FormatNumber(Null)
' expect error: 13 at 1:0
