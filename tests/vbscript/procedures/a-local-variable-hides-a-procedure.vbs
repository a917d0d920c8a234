Function F()
  F = "function"
End Function
Sub S()
  Dim f
  f = "variable"
  WScript.Echo f
End Sub
S
WScript.Echo F
' expect: variable
' expect: function
