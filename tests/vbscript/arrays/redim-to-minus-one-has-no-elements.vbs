Dim a()
ReDim a(-1)
WScript.Echo UBound(a)
' expect: -1
For Each x In a
  WScript.Echo "never"
Next
