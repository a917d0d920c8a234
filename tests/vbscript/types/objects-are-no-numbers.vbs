Class Box
End Class
Set b = New Box
x = b + 1
' expect error: 438 at 4:0
