Set re = New RegExp
re.Pattern = "\B(?=(\d{3})+$)"
re.Global = True
WScript.Echo re.Replace("1234567", ",")
' expect: 1,234,567
