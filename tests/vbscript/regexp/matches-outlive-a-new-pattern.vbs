Set re = New RegExp
re.Pattern = "a."
Set ms = re.Execute("xab")
re.Pattern = "x"
WScript.Echo re.Execute("xab")(0) & " " & ms(0)
Set re = Nothing
WScript.Echo ms(0).FirstIndex
' expect: x ab
' expect: 1
