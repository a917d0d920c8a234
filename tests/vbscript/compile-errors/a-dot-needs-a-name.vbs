x = o.
' expect error: 1010 at 1:6
' expect text: Expected identifier
