Exit Sub
' expect error: 1039
