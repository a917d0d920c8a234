Set re = New RegExp
re.Pattern = "[^\d\s]+"
re.Global = True
For Each m In re.Execute("a1 b2")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:a
' expect: 3:b
