Class Circle
  Public Radius
  Public Function Area()
    Area = Pi() * Squared(Radius)
  End Function
  Private Function Pi()
    Pi = 3
  End Function
  Private Function Squared(n)
    Squared = n * n
  End Function
End Class

Set c = New Circle
c.Radius = 2
WScript.Echo c.Area
' expect: 12
