Option Explicit
Execute "Dim x : x = 3"
WScript.Echo x
' expect: 3
