Class Grid
  Private m_Cells
  Private Sub Class_Initialize()
    Set m_Cells = CreateObject("Scripting.Dictionary")
  End Sub
  Public Property Get Cell(row, column)
    Cell = m_Cells(row & "," & column)
  End Property
  Public Property Let Cell(row, column, value)
    m_Cells(row & "," & column) = value
  End Property
End Class

Set g = New Grid
g.Cell(1, 2) = "a"
g.Cell(2, 1) = "b"
WScript.Echo g.Cell(1, 2), g.Cell(2, 1), TypeName(g.Cell(3, 3))
' expect: a b Empty
