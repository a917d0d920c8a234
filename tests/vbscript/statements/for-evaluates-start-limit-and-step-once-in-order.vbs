Function Tell(n, name)
  WScript.Echo name
  Tell = n
End Function

For i = Tell(1, "start") To Tell(5, "limit") Step Tell(2, "step")
  WScript.Echo i
Next
' expect: start
' expect: limit
' expect: step
' expect: 1
' expect: 3
' expect: 5
