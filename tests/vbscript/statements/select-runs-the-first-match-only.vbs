Select Case 2
  Case 1
    WScript.Echo "one"
  Case 2
    WScript.Echo "two"
  Case 2
    WScript.Echo "two again"
  Case Else
    WScript.Echo "else"
End Select
' expect: two
