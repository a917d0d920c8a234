Const a 5
' expect error: 1011 at 1:8
' expect text: Expected '='
