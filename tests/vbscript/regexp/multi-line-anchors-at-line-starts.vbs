Set re = New RegExp
re.Pattern = "^."
re.Global = True
re.MultiLine = True
For Each m In re.Execute("ab" & vbCrLf & "cd" & vbLf & "ef")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:a
' expect: 4:c
' expect: 7:e
