' expect: True
' expect: False
Set d = CreateObject("Scripting.Dictionary")
Class C
End Class
Set o = New C
d.Add o, 1
WScript.Echo d.Exists(o)
WScript.Echo d.Exists(New C)
