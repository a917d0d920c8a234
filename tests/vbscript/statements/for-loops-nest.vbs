For i = 1 To 3
  For j = i To 3
    s = s & i & j & " "
  Next
Next
WScript.Echo Trim(s)
' expect: 11 12 13 22 23 33
