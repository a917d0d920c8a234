Class Price
  Public Amount
  Public Default Property Get Value()
    Value = Amount
  End Property
End Class

Set p = New Price
p.Amount = 12
WScript.Echo p
' expect: 12
WScript.Echo p + 1, p & "!", p = 12, p > 20
' expect: 13 12! True False
WScript.Echo TypeName(p), VarType(p)
' expect: Price 2
