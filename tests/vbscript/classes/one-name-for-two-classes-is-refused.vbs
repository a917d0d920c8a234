Class C
End Class
Class c
End Class
' expect error: 1041
