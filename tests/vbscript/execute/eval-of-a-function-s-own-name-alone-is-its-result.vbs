Function F()
  F = 7
  WScript.Echo Eval("F"), Eval("F + 1"), Eval("Eval(""F"")")
  Execute "F = F * 2"
End Function
WScript.Echo F
' expect: 7 8 7
' expect: 14
