Set re = New RegExp
re.Pattern = "a"
Set ms = re.Execute("a")
WScript.Echo "" & (ms(0) Is ms(0))
' expect: True
