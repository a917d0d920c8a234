x = Nothing & "a"
' expect error: 91 at 1:0
