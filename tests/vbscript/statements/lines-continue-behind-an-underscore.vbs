total = 1 + _
  2 + _
  3
WScript.Echo total
' expect: 6
