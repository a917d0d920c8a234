Set x = New
' expect error: 1010 at 1:11
' expect text: Expected identifier
