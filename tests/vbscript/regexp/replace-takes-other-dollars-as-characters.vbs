Set re = New RegExp
re.Pattern = "(b)"
WScript.Echo re.Replace("abc", "$")
WScript.Echo re.Replace("abc", "$x")
WScript.Echo re.Replace("abc", "$0")
WScript.Echo re.Replace("abc", "$2")
WScript.Echo re.Replace("abc", "$10")
WScript.Echo re.Replace("abc", "$01")
' expect: a$c
' expect: a$xc
' expect: a$0c
' expect: a$2c
' expect: ab0c
' expect: abc
