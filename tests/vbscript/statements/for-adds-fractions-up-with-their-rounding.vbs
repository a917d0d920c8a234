For x = 0 To 1 Step 0.1
  n = n + 1
Next
WScript.Echo n
' expect: 11
WScript.Echo x < 1.1
' expect: True
