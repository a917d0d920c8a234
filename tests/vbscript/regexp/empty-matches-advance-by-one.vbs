Set re = New RegExp
re.Pattern = "x*"
re.Global = True
For Each m In re.Execute("ab")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:
' expect: 1:
' expect: 2:
