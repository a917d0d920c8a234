Class C
  Public x
  Sub X()
  End Sub
End Class
' expect error: 1041 at 3:6
' expect text: Name redefined
