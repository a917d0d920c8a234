Class Box
  Public Default Property Get Value()
    Value = "2.5"
  End Property
End Class
Set b = New Box
WScript.Echo CInt(b), CDbl(b), CStr(b), CBool(b), Int(b), Round(b), Hex(b), Asc(b)
' expect: 2 2.5 2.5 True 2 2 2 50
