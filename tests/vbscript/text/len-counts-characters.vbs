' expect: 3
' expect: 0
' expect: 3
WScript.Echo Len("abc")
WScript.Echo Len("")
WScript.Echo Len("a" & Chr(0) & "b")
