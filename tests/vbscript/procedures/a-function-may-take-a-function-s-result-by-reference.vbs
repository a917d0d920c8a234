Sub Change(n)
  n = n + 1
  WScript.Echo n
End Sub
Function Five()
  Five = 5
End Function
Change Five
Change Five()
' expect: 6
' expect: 6
