Sub Make(list)
  list = Array(1, 2)
End Sub
Make a
WScript.Echo Join(a)
' expect: 1 2
