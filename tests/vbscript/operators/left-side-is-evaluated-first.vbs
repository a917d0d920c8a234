Function Say(text, value)
  trace = trace & text
  Say = value
End Function
trace = ""
x = Say("a", 1) + Say("b", 2) * Say("c", 3)
WScript.Echo x, trace
' expect: 7 abc
