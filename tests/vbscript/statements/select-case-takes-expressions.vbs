k = 4
Select Case 8
  Case k + 1
    WScript.Echo "sum"
  Case k * 2
    WScript.Echo "product"
End Select
' expect: product
