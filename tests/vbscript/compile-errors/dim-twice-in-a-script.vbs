Dim x
Dim y, X
' expect error: 1041 at 2:7
' expect text: Name redefined
