Set re = New RegExp
re.Pattern = "<.+?>"
re.Global = True
For Each m In re.Execute("<b>x</b>")
  WScript.Echo m.FirstIndex & ":" & m.Value
Next
' expect: 0:<b>
' expect: 4:</b>
