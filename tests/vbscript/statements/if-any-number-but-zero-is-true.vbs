If 2 Then WScript.Echo "two"
' expect: two
If -1 Then WScript.Echo "minus one"
' expect: minus one
If 0.25 Then WScript.Echo "a quarter"
' expect: a quarter
If 0 Then WScript.Echo "zero" Else WScript.Echo "not zero"
' expect: not zero
If Not 1 Then WScript.Echo "minus two"
' expect: minus two
