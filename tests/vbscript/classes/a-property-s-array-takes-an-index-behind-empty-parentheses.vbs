Class Months
  Public Property Get Names()
    Names = Array("Jan", "Feb", "Mar")
  End Property
End Class

Set m = New Months
WScript.Echo m.Names()(1), UBound(m.Names)
' expect: Feb 2
