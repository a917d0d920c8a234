On Error Resume Next
Execute String(256, "a") & " = 7"
WScript.Echo Err.Number, Err.Description
' expect: 1030 Identifier too long
