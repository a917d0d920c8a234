Sub Try(code)
  On Error Resume Next
  Execute code
  WScript.Echo Err.Number
End Sub
Try "Let x = 1"
Try "Dim a(n)"
Try "Const c = 1 + 2"
Try "Set x = New C()"
Try "Exit Sub"
Try "f(1, 2)"
Try "Dim x, x"
Try "For i = 1 To 2 : For i = 1 To 2 : Next : Next"
' expect: 1024
' expect: 1026
' expect: 1045
' expect: 1025
' expect: 1039
' expect: 1044
' expect: 1041
' expect: 1040
