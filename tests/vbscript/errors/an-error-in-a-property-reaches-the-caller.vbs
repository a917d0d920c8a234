Class Account
  Private m_Balance
  Public Property Let Balance(value)
    If value < 0 Then Err.Raise 5
    m_Balance = value
  End Property
  Public Property Get Balance()
    Balance = m_Balance
  End Property
End Class

Set a = New Account
a.Balance = 7
On Error Resume Next
a.Balance = -1
WScript.Echo Err.Number, a.Balance
' expect: 5 7
