Set Me = Nothing
' expect error: 1037 at 1:4
' expect text: Invalid use of 'Me' keyword
