For i = 1 To 1000
  code = code & "v" & i & " = " & i & " : "
Next
Execute code
WScript.Echo v1, Eval("v500"), Eval("v1000")
' expect: 1 500 1000
