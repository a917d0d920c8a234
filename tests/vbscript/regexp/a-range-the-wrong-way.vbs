Set re = New RegExp
re.Pattern = "[z-a]"
WScript.Echo "set"
re.Test "x"
' expect: set
' expect error: 5021 at 4:0
' expect text: Invalid range in character set
