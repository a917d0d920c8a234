total = CCur(0)
For i = 1 To 1000
  total = total + CCur("0.1")
Next
WScript.Echo total = 100, total
' expect: True 100
