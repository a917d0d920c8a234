If Empty Then WScript.Echo "true" Else WScript.Echo "false"
' expect: false
If Not Empty Then WScript.Echo "true" Else WScript.Echo "false"
' expect: true
