Dim x
Dim y, X
' expect error: 1041
' expect text: Name redefined
