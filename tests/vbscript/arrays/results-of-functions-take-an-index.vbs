Function Pair()
  Pair = Array("left", "right")
End Function
WScript.Echo Pair()(1)
' expect: right
WScript.Echo Split("a;b;c", ";")(2)
' expect: c
