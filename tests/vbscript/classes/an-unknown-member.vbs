Class Box
End Class

Set b = New Box
b.Open
' expect error: 438 at 5:0
