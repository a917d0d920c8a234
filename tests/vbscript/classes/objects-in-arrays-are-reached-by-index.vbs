Class Box
  Public N
  Public Sub Add(k)
    N = N + k
  End Sub
End Class

Dim boxes(2)
For i = 0 To 2
  Set boxes(i) = New Box
  boxes(i).N = i
Next
boxes(1).Add 10
WScript.Echo boxes(0).N, boxes(1).N, boxes(2).N
' expect: 0 11 2
