For x = 0 To 1 Step 0.1
  text = text & x & " "
Next
WScript.Echo Trim(text)
' expect: 0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1
