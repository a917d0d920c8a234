On Error Resume Next
Select Case 1
  Case 2
    WScript.Echo "two"
  Case 1 / 0
    WScript.Echo "failed", Err.Number
  Case 1
    WScript.Echo "one"
End Select
' expect: failed 11
