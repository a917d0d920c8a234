For Each x In Array()
  WScript.Echo "never"
Next
For Each x In Split("")
  WScript.Echo "never"
Next
WScript.Echo "end"
' expect: end
