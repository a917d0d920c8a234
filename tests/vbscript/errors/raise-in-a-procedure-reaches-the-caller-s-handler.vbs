Function Half(n)
  If n Mod 2 <> 0 Then Err.Raise 1001 + vbObjectError, "Half", n & " is odd"
  Half = n / 2
End Function
On Error Resume Next
For Each n In Array(4, 5)
  Err.Clear
  h = 0
  h = Half(n)
  WScript.Echo h, "[" & Err.Source & "]", "[" & Err.Description & "]"
Next
' expect: 2 [] []
' expect: 0 [Half] [5 is odd]
