Class Row
  Public Cells(2)
End Class

Set a = New Row
Set b = New Row
a.Cells(1) = "x"
b.Cells(1) = "y"
WScript.Echo a.Cells(1), b.Cells(1), UBound(a.Cells)
' expect: x y 2
