Function Countdown(n)
  Dim mine
  mine = n
  If n > 0 Then Countdown = Countdown(n - 1)
  Countdown = Countdown & mine
End Function
WScript.Echo Countdown(4)
' expect: 01234
