Sub S()
End Sub
Set r = GetRef("S")
WScript.Echo IsObject(r), r Is Nothing
' expect: True False
