Const a = 1
Dim a
' expect error: 1041 at 2:4
' expect text: Name redefined
