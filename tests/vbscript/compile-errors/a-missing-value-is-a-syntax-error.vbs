WScript.Echo "never"
x =
' expect error: 1002 at 2:3
' expect text: Syntax error
