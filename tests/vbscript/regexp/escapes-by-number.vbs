Set re = New RegExp
re.Pattern = "\x41|\u0042|\103"
re.Global = True
For Each m In re.Execute("xABC")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 1:A
' expect: 2:B
' expect: 3:C
