Const fixed = 1
Sub CountLocal
  Const fixed = 1
  For fixed = 1 To 3
  Next
End Sub
Sub Work
End Sub
On Error Resume Next
CountLocal
' expect: 501 Illegal assignment
WScript.Echo Err.Number, Err.Description
Err.Clear
For Each fixed In Array(1, 2)
' expect: 501
  WScript.Echo Err.Number
Next
Err.Clear
For Abs = 1 To 3
' expect: 501
  WScript.Echo Err.Number
Next
Err.Clear
For Work = 1 To 3
' expect: 501
  WScript.Echo Err.Number
Next
' expect: 92
WScript.Echo Err.Number
On Error GoTo 0
For fixed = 1 To 3
Next
' expect error: 501 at 31:0
