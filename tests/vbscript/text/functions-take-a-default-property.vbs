' expect: 4
' expect: HELD
' expect: el
Class Holder
  Public Default Property Get Value()
    Value = "held"
  End Property
End Class
Set h = New Holder
WScript.Echo Len(h)
WScript.Echo UCase(h)
WScript.Echo Mid(h, 2, 2)
