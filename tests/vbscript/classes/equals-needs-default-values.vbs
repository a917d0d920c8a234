Class Box
End Class

Set a = New Box
Set b = New Box
x = (a = b)
' expect error: 438 at 6:0
