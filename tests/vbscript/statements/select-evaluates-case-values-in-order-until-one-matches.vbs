Function Tell(n)
  WScript.Echo "asked", n
  Tell = n
End Function

Select Case 3
  Case Tell(1), Tell(2)
    WScript.Echo "first"
  Case Tell(3), Tell(4)
    WScript.Echo "second"
  Case Tell(5)
    WScript.Echo "third"
End Select
' expect: asked 1
' expect: asked 2
' expect: asked 3
' expect: second
