Class C
  Sub Class_Initialize(a)
  End Sub
End Class
' expect error: 1053 at 2:6
' expect text: Class initialize or terminate do not have arguments
