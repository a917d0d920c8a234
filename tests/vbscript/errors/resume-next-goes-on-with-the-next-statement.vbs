On Error Resume Next
x = 6
x = 1 / 0
WScript.Echo x, Err.Number, Err.Description
' expect: 6 11 Division by zero
