' Copying the text each time would take minutes.
For i = 1 To 200000
  s = s & "item " & i & ","
Next
WScript.Echo Len(s)
Sub Append
  For k = 1 To 200000
    t = t & "item " & k & ","
  Next
  WScript.Echo Len(t)
End Sub
Append
' expect: 2288895
' expect: 2288895
