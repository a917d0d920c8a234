Class Box
End Class

Set a = New Box
Set b = New Box
Set c = a
WScript.Echo a Is b, a Is c, a Is Nothing, Nothing Is Nothing
' expect: False True False True
