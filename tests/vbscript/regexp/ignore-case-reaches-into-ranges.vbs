Set re = New RegExp
re.Pattern = "@|[b-d]+"
re.Global = True
re.IgnoreCase = True
For Each m In re.Execute("A@BCDe")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 1:@
' expect: 2:BCD
