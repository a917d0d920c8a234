Set re = New RegExp
re.Pattern = "\b(\w+) \1\b"
re.Global = True
For Each m In re.Execute("is this this one one")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 3:this this
' expect: 13:one one
