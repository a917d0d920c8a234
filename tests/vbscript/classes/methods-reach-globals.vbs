total = 10
Class Adder
  Public Sub Add(n)
    total = total + n
  End Sub
End Class

Set a = New Adder
a.Add 5
WScript.Echo total
' expect: 15
