Class Price
  Public Default Property Get Value()
    Value = 12
  End Property
End Class

Set p = New Price
x = p
WScript.Echo x, TypeName(x)
' expect: 12 Integer
