Sub Check(n)
  If n < 0 Then Err.Raise 1000, "Check", "negative"
End Sub
Check 1
Check -1
' expect error: 1000 at 2:16
' expect text: negative
