Set re = New RegExp
On Error Resume Next
re.Test
WScript.Echo Err.Number
Err.Clear
x = re.Replace("a")
WScript.Echo Err.Number
' expect: 450
' expect: 450
