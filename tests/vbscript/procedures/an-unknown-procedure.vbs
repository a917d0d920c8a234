WScript.Echo "runs first"
' expect: runs first
Unknown 1
' expect error: 13 at 3:0
' expect text: Type mismatch: 'Unknown'
