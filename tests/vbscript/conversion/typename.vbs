WScript.Echo TypeName(Empty), TypeName(Null), TypeName(1), TypeName(CLng(1)), TypeName(CSng(1)), TypeName(1.5)
' expect: Empty Null Integer Long Single Double
WScript.Echo TypeName(CCur(1)), TypeName(#2000-01-01#), TypeName("a"), TypeName(True), TypeName(CByte(1))
' expect: Currency Date String Boolean Byte
WScript.Echo TypeName(Nothing), TypeName(Array()), TypeName(Array(1, 2))
' expect: Nothing Variant() Variant()
