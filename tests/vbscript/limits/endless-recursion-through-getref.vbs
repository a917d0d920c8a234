Function Again(f)
  Again = f(f)
End Function
On Error Resume Next
x = Again(GetRef("Again"))
WScript.Echo Err.Number
' expect: 28
