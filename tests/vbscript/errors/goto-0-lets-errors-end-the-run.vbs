On Error Resume Next
x = 1 / 0
WScript.Echo "went on"
' expect: went on
On Error GoTo 0
x = 1 / 0
' expect error: 11 at 6:0
