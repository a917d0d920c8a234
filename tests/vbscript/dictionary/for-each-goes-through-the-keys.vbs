' expect: b=1
' expect: a=2
Set d = CreateObject("Scripting.Dictionary")
d("b") = 1
d("a") = 2
For Each k In d
  WScript.Echo k & "=" & d(k)
Next
