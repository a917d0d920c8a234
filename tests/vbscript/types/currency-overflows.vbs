c = CCur("922337203685477")
On Error Resume Next
x = c * 10
WScript.Echo Err.Number, TypeName(x)
' expect: 6 Empty
