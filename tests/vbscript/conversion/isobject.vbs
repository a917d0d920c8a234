Class Box
End Class
Set b = New Box
WScript.Echo IsObject(b), IsObject(Nothing), IsObject(Empty), IsObject("a"), IsObject(Array())
' expect: True True False False False
