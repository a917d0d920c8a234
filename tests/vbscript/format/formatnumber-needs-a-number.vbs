x = FormatNumber()
' expect error: 450
