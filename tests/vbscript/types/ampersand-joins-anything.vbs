WScript.Echo 1 & 2, "a" & 1.5, True & "!", Empty & "x"
' expect: 12 a1.5 True! x
WScript.Echo TypeName(1 & 2)
' expect: String
