Set re = New RegExp
re.Pattern = String(100000, "a")
WScript.Echo Len(re.Pattern)
re.Test "a"
' expect: 100000
' expect error: 7 at 4:0
' expect text: Out of memory
