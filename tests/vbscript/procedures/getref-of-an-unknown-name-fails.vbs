Set r = GetRef("Unknown")
' expect error: 5 at 1:0
