Set re = New RegExp
re.Pattern = "[\w-.]+"
re.Global = True
For Each m In re.Execute("a-b.c d")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:a-b.c
' expect: 6:d
