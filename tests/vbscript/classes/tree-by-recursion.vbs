Class Tree
  Private m_Left, m_Right, m_Value
  Private Sub Class_Initialize()
    Set m_Left = Nothing
    Set m_Right = Nothing
  End Sub
  Public Sub Insert(n)
    If IsEmpty(m_Value) Then
      m_Value = n
    ElseIf n < m_Value Then
      If m_Left Is Nothing Then Set m_Left = New Tree
      m_Left.Insert n
    Else
      If m_Right Is Nothing Then Set m_Right = New Tree
      m_Right.Insert n
    End If
  End Sub
  Public Function Sorted()
    If Not m_Left Is Nothing Then Sorted = m_Left.Sorted
    Sorted = Sorted & m_Value & " "
    If Not m_Right Is Nothing Then Sorted = Sorted & m_Right.Sorted
  End Function
End Class

Set t = New Tree
For Each n In Array(5, 2, 8, 1, 9, 3)
  t.Insert n
Next
WScript.Echo Trim(t.Sorted)
' expect: 1 2 3 5 8 9
