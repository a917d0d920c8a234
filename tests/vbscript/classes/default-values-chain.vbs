Class Inner
  Public Default Property Get Value()
    Value = "deep"
  End Property
End Class
Class Outer
  Public Default Property Get Inside()
    Set Inside = New Inner
  End Property
End Class

Set o = New Outer
WScript.Echo o & ""
' expect: deep
