Class C
Public x End Class
Set o = New C
o.x = 1
WScript.Echo o.x
' expect: 1
