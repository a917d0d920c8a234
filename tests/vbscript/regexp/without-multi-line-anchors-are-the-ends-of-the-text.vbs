Set re = New RegExp
re.Pattern = "^\w+|\w+$"
re.Global = True
For Each m In re.Execute("ab" & vbLf & "cd" & vbLf & "ef")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:ab
' expect: 6:ef
