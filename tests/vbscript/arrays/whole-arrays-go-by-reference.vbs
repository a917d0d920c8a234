Sub Fill(list)
  For i = 0 To UBound(list)
    list(i) = i * i
  Next
End Sub
Dim a(3)
Fill a
WScript.Echo Join(a)
' expect: 0 1 4 9
