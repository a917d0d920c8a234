ExecuteGlobal "Const kLimit = 12"
WScript.Echo kLimit
' expect: 12
On Error Resume Next
kLimit = 13
WScript.Echo Err.Number, kLimit
' expect: 501 12
