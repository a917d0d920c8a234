' expect: Integer
WScript.Echo TypeName(StrComp("a", "b"))
