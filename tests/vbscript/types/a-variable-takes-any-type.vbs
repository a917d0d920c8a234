x = 1
WScript.Echo TypeName(x)
' expect: Integer
x = "a"
WScript.Echo TypeName(x)
' expect: String
x = 1.5
WScript.Echo TypeName(x)
' expect: Double
Set x = Nothing
WScript.Echo TypeName(x)
' expect: Nothing
x = Empty
WScript.Echo TypeName(x)
' expect: Empty
