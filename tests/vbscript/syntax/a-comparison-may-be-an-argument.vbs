Sub Show(a, b)
  WScript.Echo a & "," & b
End Sub
Show 1 = 1, 2
Show (1) & 2, 3
' expect: True,2
' expect: 12,3
