Set re = New RegExp
re.Pattern = "\d+"
Set m = re.Execute("in 2026")(0)
WScript.Echo m
WScript.Echo m + 1
If m = "2026" Then WScript.Echo "same"
' expect: 2026
' expect: 2027
' expect: same
