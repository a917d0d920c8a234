Class Builder
  Private m_Text
  Public Function Add(s)
    m_Text = m_Text & s
    Set Add = Me
  End Function
  Public Property Get Text()
    Text = m_Text
  End Property
End Class

Set b = New Builder
WScript.Echo b.Add("a").Add("b").Add("c").Text
' expect: abc
