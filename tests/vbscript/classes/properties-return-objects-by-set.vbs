Class Owner
  Private m_Child
  Public Property Get Child()
    Set Child = m_Child
  End Property
  Public Property Set Child(value)
    Set m_Child = value
  End Property
End Class
Class Kid
  Public Name
End Class

Set o = New Owner
Set o.Child = New Kid
o.Child.Name = "Ann"
WScript.Echo o.Child.Name, TypeName(o.Child)
' expect: Ann Kid
