For i = 1 To 2
  WScript.Echo TypeName(i)
Next
' expect: Integer
' expect: Integer
