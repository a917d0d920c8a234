d = #no such day#
' expect error: 1002 at 1:4
' expect text: Syntax error
