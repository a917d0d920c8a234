On Error Resume Next
WScript.Echo "never"
Exit Function
' expect error: 1039
