Class Box
End Class

Set b = New Box
b.Content = 1
' expect error: 438 at 5:0
