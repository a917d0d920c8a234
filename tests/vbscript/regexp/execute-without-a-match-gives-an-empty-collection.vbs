Set re = New RegExp
re.Pattern = "x"
Set ms = re.Execute("abc")
WScript.Echo ms.Count
For Each m In ms
  WScript.Echo "never"
Next
' expect: 0
