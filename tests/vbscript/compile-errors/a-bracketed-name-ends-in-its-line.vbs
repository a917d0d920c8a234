x = [no end
y = 1
' expect error: 1007 at 1:4
' expect text: Expected ']'
