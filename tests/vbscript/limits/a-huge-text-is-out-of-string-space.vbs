On Error Resume Next
s = String(2000000000, "x")
WScript.Echo Err.Number, Err.Description
' expect: 14 Out of string space
