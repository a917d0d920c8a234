Set re = New RegExp
re.Pattern = "\bis\b"
re.Global = True
For Each m In re.Execute("this is his")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 5:is
