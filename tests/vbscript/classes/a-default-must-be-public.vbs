Class C
  Private Default Function F()
  End Function
End Class
' expect error: 1057
