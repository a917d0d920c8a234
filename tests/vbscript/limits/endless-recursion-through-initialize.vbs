Class Doll
  Private m_Inner
  Private Sub Class_Initialize()
    Set m_Inner = New Doll
  End Sub
End Class
On Error Resume Next
Set d = New Doll
WScript.Echo Err.Number
' expect: 28
