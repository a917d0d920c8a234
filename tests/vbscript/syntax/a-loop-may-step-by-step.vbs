step = 2
For error = 1 To 5 Step step
  WScript.Echo error
Next
' expect: 1
' expect: 3
' expect: 5
