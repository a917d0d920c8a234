Function F()
  F = "early"
End Function
WScript.Echo F()
' expect: late
Function F()
  F = "late"
End Function
