Sub S(p)
  Dim v
  v = 1
  Execute "Execute ""v = v + p: made = v"""
  WScript.Echo v, made, Eval("Eval(""v + made"")")
  Execute "Eval(""Eval(""""p = 5"""")""): Execute ""p = 5: Dim late: late = p"""
  WScript.Echo p, late
End Sub
S 2
' expect: 3 3 6
' expect: 5 5
Execute "Execute ""Dim outside: outside = 7: Function F: F = outside: End Function"""
WScript.Echo outside, F, Eval("Eval(""outside"") + F")
' expect: 7 7 14
