Do
  outer = outer + 1
  Do
    inner = inner + 1
    Exit Do
  Loop
Loop Until outer = 3
WScript.Echo outer, inner
' expect: 3 3
