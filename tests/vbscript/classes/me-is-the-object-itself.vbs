Class Box
  Public Content
  Public Function Myself()
    Set Myself = Me
  End Function
  Public Sub Fill(n)
    Me.Content = n
  End Sub
End Class

Set b = New Box
b.Fill 6
WScript.Echo b.Content, b.Myself Is b
' expect: 6 True
