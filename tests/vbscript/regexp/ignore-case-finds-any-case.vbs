Set re = New RegExp
re.Pattern = "abc"
re.Global = True
re.IgnoreCase = True
For Each m In re.Execute("ABC abc Abc")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:ABC
' expect: 4:abc
' expect: 8:Abc
