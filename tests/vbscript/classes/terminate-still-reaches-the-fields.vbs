Class Account
  Public Balance
  Private Sub Class_Terminate()
    Report
  End Sub
  Private Sub Report()
    WScript.Echo "closed with", Balance
  End Sub
End Class

Set a = New Account
a.Balance = 12
Set a = Nothing
' expect: closed with 12
