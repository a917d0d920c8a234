Set x Nothing
' expect error: 1011 at 1:6
' expect text: Expected '='
