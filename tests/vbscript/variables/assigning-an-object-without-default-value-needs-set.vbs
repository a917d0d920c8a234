Class Plain
End Class

Set p = New Plain
x = p
' expect error: 438 at 5:0
