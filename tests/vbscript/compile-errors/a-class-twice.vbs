Class C
End Class
Class c
End Class
' expect error: 1041 at 3:6
' expect text: Name redefined
