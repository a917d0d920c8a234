Set re = New RegExp
re.Pattern = "\w+(?=;)"
re.Global = True
For Each m In re.Execute("ab;cd;ef")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:ab
' expect: 3:cd
