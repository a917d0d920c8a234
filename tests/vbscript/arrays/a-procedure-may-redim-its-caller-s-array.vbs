Sub Append(list, value)
  ReDim Preserve list(UBound(list) + 1)
  list(UBound(list)) = value
End Sub
Dim a()
ReDim a(0)
a(0) = "a"
Append a, "b"
Append a, "c"
WScript.Echo Join(a), UBound(a)
' expect: a b c 2
