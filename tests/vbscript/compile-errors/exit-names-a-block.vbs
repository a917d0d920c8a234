Exit
' expect error: 1039 at 1:4
' expect text: Invalid 'exit' statement
