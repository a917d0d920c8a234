Set re = New RegExp
re.Pattern = "^\s+|\s+$"
re.Global = True
WScript.Echo "[" & re.Replace(vbTab & " two words " & vbCrLf, "") & "]"
' expect: [two words]
