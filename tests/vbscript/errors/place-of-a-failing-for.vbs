x = 0
 For i = 1 To 1 / x
  Next
' expect error: 11 at 2:1
