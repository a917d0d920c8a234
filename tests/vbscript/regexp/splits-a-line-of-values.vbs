Set re = New RegExp
re.Pattern = "(?:^|,)(?:""([^""]*)""|([^,]*))"
re.Global = True
For Each m In re.Execute("one,""two, three"",4")
  WScript.Echo m.SubMatches(0) & m.SubMatches(1)
Next
' expect: one
' expect: two, three
' expect: 4
