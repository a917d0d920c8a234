Dim asked
Function Subject()
  asked = asked + 1
  Subject = 3
End Function

Select Case Subject()
  Case 1
  Case 2
  Case 3
    WScript.Echo "three"
End Select
' expect: three
WScript.Echo asked
' expect: 1
