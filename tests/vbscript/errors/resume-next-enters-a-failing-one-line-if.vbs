On Error Resume Next
If 1 / 0 = 1 Then WScript.Echo "branch" Else WScript.Echo "else"
' expect: branch
WScript.Echo "end"
' expect: end
