Dim a

Class Index
  Public Default Property Get Value()
    a = "no array"
    Value = 0
  End Property
End Class
Dim i
Set i = New Index
Sub Take(x)
End Sub

On Error Resume Next
ReDim a(5)
a(i) = 7
WScript.Echo Err.Number & " " & a
Err.Clear
ReDim a(5)
Take a(i)
WScript.Echo Err.Number & " " & a
' expect: 13 no array
' expect: 13 no array
