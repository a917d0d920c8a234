Dim tries
Sub Unsteady()
  tries = tries + 1
  If tries < 3 Then Err.Raise 1000
End Sub
On Error Resume Next
Do
  Err.Clear
  Unsteady
Loop While Err.Number <> 0 And tries < 10
WScript.Echo tries, Err.Number
' expect: 3 0
