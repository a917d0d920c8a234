For a = 1 To 2
  For b = 1 To 2
    Select Case a
      Case 1
        Select Case b
          Case 1
            WScript.Echo "1 1"
          Case Else
            WScript.Echo "1 else"
        End Select
      Case Else
        WScript.Echo "else"
    End Select
  Next
Next
' expect: 1 1
' expect: 1 else
' expect: else
' expect: else
