Set re = New RegExp
re.Pattern = "a{,2}|{x}"
re.Global = True
For Each m In re.Execute("a{,2} {x}")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:a{,2}
' expect: 6:{x}
