Option Explicit
Dim a
WScript.Echo "runs first"
' expect: runs first
a = b + 1
' expect error: 500 at 5:0
' expect text: Variable is undefined: 'b'
