On Error Resume Next
If Err Then WScript.Echo "never"
x = 1 / 0
If Err Then WScript.Echo "failed", Err
' expect: failed 11
If Err = 11 Then WScript.Echo "by zero"
' expect: by zero
