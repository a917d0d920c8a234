Exit Sub
' expect error: 1039 at 1:5
' expect text: Invalid 'exit' statement
