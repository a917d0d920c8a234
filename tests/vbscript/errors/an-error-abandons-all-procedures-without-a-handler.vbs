Sub Outer()
  WScript.Echo "outer"
  Inner
  WScript.Echo "never"
End Sub
Sub Inner()
  WScript.Echo "inner"
  x = 1 / 0
  WScript.Echo "never"
End Sub
On Error Resume Next
Outer
WScript.Echo "after"
' expect: outer
' expect: inner
' expect: after
