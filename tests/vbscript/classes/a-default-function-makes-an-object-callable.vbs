Class Adder
  Public Amount
  Public Default Function Add(n)
    Add = n + Amount
  End Function
End Class

Set plusFive = New Adder
plusFive.Amount = 5
WScript.Echo plusFive(10), plusFive.Add(1)
' expect: 15 6
