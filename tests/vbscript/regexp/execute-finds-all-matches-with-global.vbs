Set re = New RegExp
re.Pattern = "\d+"
re.Global = True
For Each m In re.Execute("a1b22c333")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 1:1
' expect: 3:22
' expect: 6:333
