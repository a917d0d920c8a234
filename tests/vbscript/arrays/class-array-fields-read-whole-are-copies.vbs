Class Row
  Public Cells(1)
End Class

Set r = New Row
r.Cells(0) = "kept"
copy = r.Cells
copy(0) = "changed"
WScript.Echo r.Cells(0), copy(0)
' expect: kept changed
