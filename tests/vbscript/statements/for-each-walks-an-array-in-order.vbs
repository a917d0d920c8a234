For Each x In Array("c", "a", "b")
  WScript.Echo x
Next
' expect: c
' expect: a
' expect: b
