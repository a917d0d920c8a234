Sub Work
  total = 9
  ExecuteGlobal "total = 10"
  WScript.Echo total
  total = total + 1
  WScript.Echo total
End Sub
Work
' expect: 9
' expect: 10
WScript.Echo total
' expect: 10
