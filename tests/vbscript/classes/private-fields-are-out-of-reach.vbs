Class Safe
  Private m_Secret
  Private Sub Class_Initialize()
    m_Secret = 42
  End Sub
End Class

Set s = New Safe
x = s.m_Secret
' expect error: 438 at 9:0
