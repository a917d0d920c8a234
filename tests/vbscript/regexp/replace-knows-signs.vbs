Set re = New RegExp
re.Pattern = "b(x)?"
WScript.Echo re.Replace("abc", "[$&]")
WScript.Echo re.Replace("abc", "[$`]")
WScript.Echo re.Replace("abc", "[$']")
WScript.Echo re.Replace("abc", "[$$]")
WScript.Echo re.Replace("abc", "[$1]")
' expect: a[b]c
' expect: a[a]c
' expect: a[c]c
' expect: a[$]c
' expect: a[]c
