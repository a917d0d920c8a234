Set re = New RegExp
re.Pattern = "\w+$"
re.Global = True
re.MultiLine = True
For Each m In re.Execute("ab" & vbCrLf & "cd" & vbLf & "ef")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:ab
' expect: 4:cd
' expect: 7:ef
