Class C
End Class
Set o = New C()
' expect error: 1025
