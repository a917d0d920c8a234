Set re = New RegExp
re.Pattern = "\.|\$|\(|\\"
re.Global = True
For Each m In re.Execute("a.$(\")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 1:.
' expect: 2:$
' expect: 3:(
' expect: 4:\
