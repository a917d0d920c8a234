On Error Resume Next
x = 6
For x = 1 / 0 To 3
  n = n + 1
Next
WScript.Echo n, x, Err.Number, Err.Description
' expect: 1 6 92 For loop not initialized
