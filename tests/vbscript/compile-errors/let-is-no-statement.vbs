Let x = 1
' expect error: 1024 at 1:0
' expect text: Expected statement
