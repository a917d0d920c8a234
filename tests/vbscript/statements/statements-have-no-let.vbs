Let x = 1
' expect error: 1024
' expect text: Expected statement
