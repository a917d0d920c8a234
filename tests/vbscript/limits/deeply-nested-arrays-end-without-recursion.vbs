On Error Resume Next
a = Empty
For i = 1 To 1500
  a = Array(a)
Next
a = Empty
WScript.Echo "released"
' expect: released
