Sub Third()
  Err.Raise 3
End Sub
Sub Second()
  On Error Resume Next
  Third
  WScript.Echo "second caught", Err.Number
  Err.Clear
  On Error GoTo 0
  Err.Raise 2
End Sub
Sub First()
  On Error Resume Next
  Second
  WScript.Echo "first caught", Err.Number
End Sub
First
WScript.Echo "done"
' expect: second caught 3
' expect: first caught 2
' expect: done
