Option Explicit
On Error Resume Next
Execute "missing = 1"
WScript.Echo Err.Number
' expect: 500
