For i = 1 To 2
  Do
    While Not done
      Select Case i
        Case 1, 2
          If i = 1 Then
            With CreateObject("VBScript.RegExp")
              .Pattern = "a"
              For Each s In Array("a", "b")
                r = r & i & s & CInt(.Test(s)) & " "
              Next
            End With
          End If
      End Select
      done = True
    Wend
    Exit Do
  Loop
Next
WScript.Echo Trim(r)
' expect: 1a-1 1b0
