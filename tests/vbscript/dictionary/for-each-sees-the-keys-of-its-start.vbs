' expect: aa bb
Set d = CreateObject("Scripting.Dictionary")
d("a") = 1
d("b") = 2
For Each k In d
  d.Remove k
  d(k & k) = 1
Next
WScript.Echo Join(d.Keys)
