Class Price
  Public Amount
  Public Default Property Get Value()
    Value = Amount
  End Property
End Class

Set a = New Price
a.Amount = 5
Set b = New Price
b.Amount = 5
WScript.Echo a = b, a Is b, a <> b
' expect: True False False
