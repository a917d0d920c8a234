Function Gcd(a, b)
  Do While b <> 0
    rest = a Mod b
    a = b
    b = rest
  Loop
  Gcd = a
End Function
WScript.Echo Gcd(1071, 462), Gcd(1000000, 35)
' expect: 21 5
