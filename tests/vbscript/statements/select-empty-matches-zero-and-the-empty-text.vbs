Select Case Empty
  Case 0
    WScript.Echo "zero"
End Select
' expect: zero
Select Case Empty
  Case ""
    WScript.Echo "no text"
End Select
' expect: no text
