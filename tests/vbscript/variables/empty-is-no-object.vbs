If x Is Nothing Then WScript.Echo "never"
' expect error: 424 at 1:0
