Class C
  Private m_N
  Public Property Get Size()
    Size = m_N
    If m_N > 5 Then Exit Property
    Size = "small"
  End Property
  Public Property Let Size(n)
    If n < 0 Then Exit Property
    m_N = n
  End Property
End Class

Set o = New C
o.Size = 9
o.Size = -1
WScript.Echo o.Size
' expect: 9
o.Size = 3
WScript.Echo o.Size
' expect: small
