Set re = New RegExp
re.Pattern = "\bfoo(?!bar)\w*"
re.Global = True
For Each m In re.Execute("foobar foobaz foo")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 7:foobaz
' expect: 14:foo
