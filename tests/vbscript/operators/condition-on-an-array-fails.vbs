If Array(1) Then WScript.Echo "taken"
' expect error: 13 at 1:0
