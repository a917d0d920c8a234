' A comment
Rem another one

x = 0

x = 1 / x
' expect error: 11 at 6:0
