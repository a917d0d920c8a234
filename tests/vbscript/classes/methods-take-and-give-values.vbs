Class Calculator
  Private m_Total
  Public Sub Add(n)
    m_Total = m_Total + n
  End Sub
  Public Function Total(factor)
    Total = m_Total * factor
  End Function
End Class

Set c = New Calculator
c.Add 3
Call c.Add(4)
WScript.Echo c.Total(2)
' expect: 14
