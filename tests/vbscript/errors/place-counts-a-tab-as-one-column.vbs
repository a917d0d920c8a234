If True Then
		x = 1 / 0
End If
' expect error: 11 at 2:2
