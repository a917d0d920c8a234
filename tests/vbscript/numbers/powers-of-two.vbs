x = 1
For i = 1 To 40
  x = x * 2
  If i = 14 Or i = 15 Or i = 30 Or i = 31 Or i = 40 Then WScript.Echo i, TypeName(x), x
Next
' expect: 14 Integer 16384
' expect: 15 Long 32768
' expect: 30 Long 1073741824
' expect: 31 Double 2147483648
' expect: 40 Double 1099511627776
