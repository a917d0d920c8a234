For i = 0 To 255
  If Asc(Chr(i)) <> i Then WScript.Echo "differs at", i
Next
WScript.Echo "done"
' expect: done
