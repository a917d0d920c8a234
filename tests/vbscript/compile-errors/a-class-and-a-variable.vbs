Dim c
Class C
End Class
' expect error: 1041 at 2:6
' expect text: Name redefined
