Option Explicit
WScript.Echo "runs first"
' expect: runs first
total = 1
' expect error: 500 at 4:0
' expect text: Variable is undefined: 'total'
