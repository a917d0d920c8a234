WScript.Echo "never"
s = "abc
' expect error: 1033
' expect text: Unterminated string constant
