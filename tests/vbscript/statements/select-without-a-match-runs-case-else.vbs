Select Case "pear"
  Case "apple"
    WScript.Echo "apple"
  Case Else
    WScript.Echo "else"
End Select
' expect: else
