Me = 1
' expect error: 1037 at 1:0
' expect text: Invalid use of 'Me' keyword
