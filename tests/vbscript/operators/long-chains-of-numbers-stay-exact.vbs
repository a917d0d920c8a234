total = 0
For i = 1 To 1000
  total = total + i
Next
WScript.Echo TypeName(total), total
' expect: Long 500500
product = 1
For i = 1 To 20
  product = product * i
Next
WScript.Echo TypeName(product), product
' expect: Double 2.43290200817664E+18
