Class C
  Public Function Name()
    Name = "new"
  End Function
End Class
x = (New C).Name()
WScript.Echo x
' expect: new
