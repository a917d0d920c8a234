Class Safe
  Private Property Get Secret()
    Secret = 42
  End Property
  Public Function Told()
    Told = Secret
  End Function
End Class

Set s = New Safe
WScript.Echo s.Told
' expect: 42
x = s.Secret
' expect error: 438 at 13:0
