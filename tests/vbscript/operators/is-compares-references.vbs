Class Box
End Class
Set a = New Box
Set b = a
Set c = New Box
WScript.Echo a Is b, a Is c, a Is Nothing, Not a Is Nothing
' expect: True False False True
