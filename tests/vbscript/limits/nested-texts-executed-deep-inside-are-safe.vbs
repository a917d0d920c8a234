' The text nests as deep as may be, and is read where the stack is nearly used up.
nested = "x = " & String(240, "(") & "1" & String(240, ")")
tries = 0
Sub Deeper
  On Error Resume Next
  Execute "Deeper"
  Execute nested
  If Err.Number <> 0 And Err.Number <> 28 Then WScript.Echo Err.Number
  tries = tries + 1
End Sub
Deeper
WScript.Echo tries > 10
' expect: True
