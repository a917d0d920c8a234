WScript.Echo TypeName(1 + CByte(1)), TypeName(1 + 70000), TypeName(70000 + 1.5)
' expect: Integer Long Double
WScript.Echo TypeName(1 + CSng(1)), TypeName(CSng(1) + 1.5), TypeName(True + CByte(1))
' expect: Single Double Integer
