Sub Inner()
  Err.Raise 1000, "Inner", "first"
End Sub
Sub Outer()
  Dim number, text
  On Error Resume Next
  Inner
  number = Err.Number
  text = Err.Description
  On Error GoTo 0
  Err.Raise number + 1, "Outer", text & ", told again"
End Sub
On Error Resume Next
Outer
WScript.Echo Err.Number, Err.Source, Err.Description
' expect: 1001 Outer first, told again
