Class Holder
  Public held
  Public Default Property Get Value()
    Value = held
  End Property
End Class
Set h = New Holder
WScript.Echo IsEmpty(h), IsNull(h), IsObject(h)
' expect: True False True
h.held = Null
WScript.Echo IsEmpty(h), IsNull(h), VarType(h), TypeName(h)
' expect: False True 1 Holder
h.held = "12"
WScript.Echo IsNumeric(h), IsDate(h), VarType(h)
' expect: True False 8
