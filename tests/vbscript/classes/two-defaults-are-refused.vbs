Class C
  Public Default Function F()
  End Function
  Public Default Function G()
  End Function
End Class
' expect error: 1052
