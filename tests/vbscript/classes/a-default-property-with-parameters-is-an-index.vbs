Class List
  Private m_Items(9)
  Public Default Property Get Item(i)
    Item = m_Items(i)
  End Property
  Public Property Let Item(i, value)
    m_Items(i) = value
  End Property
End Class

Set l = New List
l(3) = "three"
l.Item(4) = "four"
WScript.Echo l(3), l.Item(3), l(4)
' expect: three three four
