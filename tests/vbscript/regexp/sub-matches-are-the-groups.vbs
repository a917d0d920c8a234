Set re = New RegExp
re.Pattern = "(\w+)@(\w+)\.(\w+)"
Set m = re.Execute("mail to dragon@xyzzy.com now")(0)
WScript.Echo m.SubMatches.Count
WScript.Echo m.SubMatches(0) & "|" & m.SubMatches(1) & "|" & m.SubMatches.Item(2)
' expect: 3
' expect: dragon|xyzzy|com
