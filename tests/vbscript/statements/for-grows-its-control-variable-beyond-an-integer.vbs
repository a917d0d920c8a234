For i = 32766 To 32768
  n = n + 1
Next
WScript.Echo n, i, TypeName(i)
' expect: 3 32769 Long
