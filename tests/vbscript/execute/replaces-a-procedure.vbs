Function F()
  F = "old"
End Function
before = F()
Execute "Function F() : F = ""new"" : End Function"
WScript.Echo before, F()
' expect: old new
