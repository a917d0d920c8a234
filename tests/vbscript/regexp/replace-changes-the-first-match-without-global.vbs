Set re = New RegExp
re.Pattern = "fox"
WScript.Echo re.Replace("fox and fox", "cat")
re.Global = True
WScript.Echo re.Replace("fox and fox", "cat")
WScript.Echo re.Replace("dog", "cat")
' expect: cat and fox
' expect: cat and cat
' expect: dog
