Set re = New RegExp
re.Pattern = "(a)?\1b"
re.Global = True
For Each m In re.Execute("b aab")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:b
' expect: 2:aab
