x = 1E308
On Error Resume Next
y = x * 10
WScript.Echo Err.Number, TypeName(y)
' expect: 6 Empty
