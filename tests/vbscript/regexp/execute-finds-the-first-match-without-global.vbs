Set re = New RegExp
re.Pattern = "\d"
Set ms = re.Execute("a1b2c3")
WScript.Echo ms.Count & " " & ms(0)
' expect: 1 1
