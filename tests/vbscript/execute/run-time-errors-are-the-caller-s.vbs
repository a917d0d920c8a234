On Error Resume Next
Execute "x = 1 : x = 1 / 0 : x = 3"
WScript.Echo x, Err.Number
' expect: 1 11
