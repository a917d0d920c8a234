Set re = New RegExp
re.Pattern = "a{2,3}"
re.Global = True
For Each m In re.Execute("aaaaa a")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:aaa
' expect: 3:aa
