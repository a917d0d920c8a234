Set x = New C()
' expect error: 1025 at 1:13
' expect text: Expected end of statement
