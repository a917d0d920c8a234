Option Explicit
Dim n
On Error Resume Next
n = missing
WScript.Echo Err.Number, Err.Description
' expect: 500 Variable is undefined
