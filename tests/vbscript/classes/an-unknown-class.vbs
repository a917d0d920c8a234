WScript.Echo "runs first"
' expect: runs first
Set o = New Unknown
' expect error: 506 at 3:0
