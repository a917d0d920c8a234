ReDim a
' expect error: 1005 at 1:7
' expect text: Expected '('
