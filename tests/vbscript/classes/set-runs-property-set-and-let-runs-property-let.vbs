Class Holder
  Public Property Let Content(value)
    WScript.Echo "let", value
  End Property
  Public Property Set Content(value)
    WScript.Echo "set", TypeName(value)
  End Property
End Class

Set h = New Holder
h.Content = 5
Set h.Content = h
' expect: let 5
' expect: set Holder
