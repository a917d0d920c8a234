' A property of a class of the script, read and written.
Class Counter
  Private m_Value

  Private Sub Class_Initialize()
    m_Value = 0
  End Sub

  Public Property Get Value()
    Value = m_Value
  End Property

  Public Property Let Value(newValue)
    m_Value = newValue
  End Property
End Class

Dim counted, i
Set counted = New Counter
For i = 1 To 500000
  counted.Value = (counted.Value + i) Mod 1000003
Next
WScript.Echo counted.Value
