' expect: 321
Set d = CreateObject("Scripting.Dictionary")
For Each w In Split("a b a c a b")
  d(w) = d(w) + 1
Next
WScript.Echo d("a") & d("b") & d("c")
