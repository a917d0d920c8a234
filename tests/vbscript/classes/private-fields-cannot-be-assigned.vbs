Class Safe
  Private m_Secret
End Class

Set s = New Safe
s.m_Secret = 1
' expect error: 438 at 6:0
