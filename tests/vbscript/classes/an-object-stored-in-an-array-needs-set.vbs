Class Box
End Class

Dim a(0)
a(0) = New Box
' expect error: 438 at 5:0
