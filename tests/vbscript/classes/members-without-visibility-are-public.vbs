Class C
  Sub S()
    WScript.Echo "sub"
  End Sub
  Function F()
    F = "function"
  End Function
  Property Get P()
    P = "property"
  End Property
End Class

Set o = New C
o.S
WScript.Echo o.F, o.P
' expect: sub
' expect: function property
