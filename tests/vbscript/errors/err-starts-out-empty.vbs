WScript.Echo Err.Number, "[" & Err.Description & Err.Source & "]"
' expect: 0 []
WScript.Echo TypeName(Err.Number), TypeName(Err.Description)
' expect: Long String
