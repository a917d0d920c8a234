Dim a
ReDim a(5)

Class Mover
  Public Default Property Get Value()
    ReDim a(100000)
    Value = "v"
  End Property
End Class
Dim o
Set o = New Mover

a(0) = o
WScript.Echo UBound(a) & " " & a(0)

' Likewise of an element that a parameter refers to: it is gone with the old array.
Sub Assign(x)
  x = o
End Sub
Sub Append(x)
  x = "x"
  x = x & o
End Sub
ReDim a(5)
Assign a(1)
WScript.Echo UBound(a) & " " & a(1)
ReDim a(5)
Append a(1)
WScript.Echo UBound(a) & " " & a(1)

' And of an array within the array, which is gone too.
ReDim a(5)
a(0) = Array(1, 2)
On Error Resume Next
a(0)(1) = o
WScript.Echo Err.Number & " " & UBound(a)
' expect: 100000 v
' expect: 100000 v
' expect: 100000 xv
' expect: 13 100000
