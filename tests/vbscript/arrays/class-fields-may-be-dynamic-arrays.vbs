Class Stack
  Private m_Items()
  Private m_Count
  Private Sub Class_Initialize()
    ReDim m_Items(0)
    m_Count = 0
  End Sub
  Public Sub Push(value)
    If m_Count > UBound(m_Items) Then ReDim Preserve m_Items(m_Count * 2)
    m_Items(m_Count) = value
    m_Count = m_Count + 1
  End Sub
  Public Function Pop()
    m_Count = m_Count - 1
    Pop = m_Items(m_Count)
  End Function
End Class

Set s = New Stack
For i = 1 To 5
  s.Push i * 10
Next
WScript.Echo s.Pop, s.Pop, s.Pop
' expect: 50 40 30
