If Null Then WScript.Echo "true" Else WScript.Echo "false"
' expect: false
If Null = Null Then WScript.Echo "true" Else WScript.Echo "false"
' expect: false
If Not Null Then WScript.Echo "true" Else WScript.Echo "false"
' expect: false
