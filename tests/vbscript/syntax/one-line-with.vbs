Class C
Public x
End Class
Set o = New C
With o
.x = 1 End With
WScript.Echo o.x
' expect: 1
