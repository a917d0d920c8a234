First
Sub First()
  WScript.Echo "first", Second(20)
End Sub
Function Second(n)
  Second = n + 1
End Function
' expect: first 21
