Class Box
End Class
Set b = New Box
On Error Resume Next
x = CInt(b)
WScript.Echo Err.Number
' expect: 438
Err.Clear
x = CStr(b)
WScript.Echo Err.Number
' expect: 438
