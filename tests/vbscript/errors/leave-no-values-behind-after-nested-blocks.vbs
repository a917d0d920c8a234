Function Bad()
  Err.Raise 1000
End Function
On Error Resume Next
For n = 1 To 300
  For Each x In Array(1, 2)
    Select Case x
      Case 1
        y = Array(1, Bad(), 3)
      Case Bad()
        hits = hits + 1
    End Select
  Next
Next
WScript.Echo n, hits, Err.Number
' expect: 301 300 1000
