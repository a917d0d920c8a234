Dim a()
ReDim a(2)
Erase a
On Error Resume Next
n = UBound(a)
WScript.Echo Err.Number
' expect: 9
ReDim a(1)
WScript.Echo UBound(a)
' expect: 1
